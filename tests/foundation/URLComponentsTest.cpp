// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSURLComponents.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

using namespace Qt::StringLiterals;

using Items = QList<NSURLQueryItem>;
using Encoding = std::tuple<const char *, Items, const char *>;

class URLComponentsTest : public QObject {
    Q_OBJECT

private:
    static std::optional<QByteArray> url(const QString &path, const Items &items,
                                         const QString &host = u"localhost"_s,
                                         const QString &scheme = u"https"_s)
    {
        NSURLComponents components;
        components.setScheme(scheme);
        components.setHost(host);
        components.setPath(path);
        components.setQueryItems(items);
        return components.URL();
    }

private Q_SLOTS:
    void encodes_data()
    {
        const auto item = NSURLQueryItem::queryItemWithName;
        addCases<Encoding>({
            {"none", {}, ""},
            {"kept in order, repeated names too",
             {item(u"b"_s, u"1"_s), item(u"a"_s, u"2"_s), item(u"b"_s, u"3"_s)},
             "?b=1&a=2&b=3"},
            {"empty value and no value",
             {item(u"a"_s, u""_s), item(u"b"_s, std::nullopt), item(u"c"_s, QString())},
             "?a=&b&c="},
            {"unreserved", {item(u"a-._~Z9"_s, u"AZaz09-._~"_s)}, "?a-._~Z9=AZaz09-._~"},
            {"delimiters",
             {item(u"a&b=c"_s, u"+ &=#?/%;:@!$'()*,[]\"<>\\^`{|}"_s)},
             "?a%26b%3Dc=%2B%20%26%3D%23%3F%2F%25%3B%3A%40%21%24%27%28%29%2A%2C%5B%5D"
             "%22%3C%3E%5C%5E%60%7B%7C%7D"},
            {"what looks encoded", {item(u"a"_s, u"%41%zz%"_s)}, "?a=%2541%25zz%25"},
            {"controls and zero", {item(u"a"_s, u"\r\n\0\x7f"_s)}, "?a=%0D%0A%00%7F"},
            {"beyond ASCII", {item(u"ä"_s, u"é€😀"_s)}, "?%C3%A4=%C3%A9%E2%82%AC%F0%9F%98%80"},
        });
    }

    void encodes()
    {
        const auto &[name, items, query] = currentCase<Encoding>();
        QCOMPARE(url(u"/a b/ü.php"_s, items),
                 QByteArray("https://localhost/a%20b/%C3%BC.php") + query);
    }

    void refusesWhatIsNoURL()
    {
        const QString loneSurrogate(QChar(0xd800));
        QVERIFY(!url(u"/p"_s, {}, QString()));
        QVERIFY(!url(u"/p"_s, {}, u"host/evil"_s));
        QVERIFY(!url(u"/p"_s, {}, u"user@host"_s));
        QVERIFY(!url(u"/p"_s, {}, u"host"_s, QString()));
        QVERIFY(!url(u"p"_s, {}));
        QVERIFY(!url(u"/p"_s, {{loneSurrogate, std::nullopt}}));
        QVERIFY(!url(u"/p"_s, {{u"a"_s, loneSurrogate}}));
    }
};

WZT_TEST(URLComponentsTest)
#include "URLComponentsTest.moc"
