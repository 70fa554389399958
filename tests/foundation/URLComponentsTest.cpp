// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSURLComponents.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Items = QList<NSURLQueryItem>;

std::optional<QByteArray> url(const QString &host, const QString &path, const Items &items,
                              const QString &scheme = u"https"_s)
{
    NSURLComponents components;
    components.setScheme(scheme);
    components.setHost(host);
    components.setPath(path);
    components.setQueryItems(items);
    return components.URL();
}

} // namespace

class URLComponentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingInAnItemSplitsTheQuery()
    {
        const std::pair<Items, const char *> rows[] = {
            {{}, ""},
            {{{u"b"_s, u"1"_s}, {u"a"_s, u"2"_s}, {u"b"_s, u"3"_s}}, "?b=1&a=2&b=3"},
            {{{u"a"_s, u""_s}, {u"b"_s, std::nullopt}, {u"c"_s, QString()}}, "?a=&b&c="},
            {{{u"a-._~Z9"_s, u"AZaz09-._~"_s}}, "?a-._~Z9=AZaz09-._~"},
            {{{u"a&b=c"_s, u"+ &=#?/%;:@!$'()*,[]\"<>\\^`{|}"_s}},
             "?a%26b%3Dc=%2B%20%26%3D%23%3F%2F%25%3B%3A%40%21%24%27%28%29%2A%2C%5B%5D"
             "%22%3C%3E%5C%5E%60%7B%7C%7D"},
            {{{u"ä%41"_s, u"é€😀\r\n\0\x7f"_s}},
             "?%C3%A4%2541=%C3%A9%E2%82%AC%F0%9F%98%80%0D%0A%00%7F"},
        };
        for (const auto &[items, query] : rows) {
            QCOMPARE(url(u"localhost"_s, u"/a b/ü.php"_s, items),
                     QByteArray("https://localhost/a%20b/%C3%BC.php") + query);
        }
    }

    void refusesWhatIsNoURL()
    {
        for (const QString &host : {u""_s, u"host/evil"_s, u"user@host"_s})
            QVERIFY2(!url(host, u"/p"_s, {}), qPrintable(host));
        QVERIFY(!url(u"host"_s, u"p"_s, {}));
        QVERIFY(!url(u"host"_s, u"/p"_s, {}, u""_s));
        const QString loneSurrogate(QChar(0xd800));
        QVERIFY(!url(u"host"_s, u"/p"_s, {{loneSurrogate, std::nullopt}}));
        QVERIFY(!url(u"host"_s, u"/p"_s, {{u"a"_s, loneSurrogate}}));
    }
};

WZT_TEST(URLComponentsTest)
#include "URLComponentsTest.moc"
