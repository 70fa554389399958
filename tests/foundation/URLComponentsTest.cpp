// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSURLComponents.h"
#include "tests/support/TestRunner.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Items = QList<NSURLQueryItem>;
Q_DECLARE_METATYPE(NSURLQueryItem)

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
        QTest::addColumn<Items>("items");
        QTest::addColumn<QByteArray>("query");

        const auto item = NSURLQueryItem::queryItemWithName;
        QTest::newRow("none") << Items{} << QByteArray();
        QTest::newRow("kept in order, repeated names too")
            << Items{item(u"b"_s, u"1"_s), item(u"a"_s, u"2"_s), item(u"b"_s, u"3"_s)}
            << QByteArray("?b=1&a=2&b=3");
        QTest::newRow("empty value and no value")
            << Items{item(u"a"_s, u""_s), item(u"b"_s, std::nullopt), item(u"c"_s, QString())}
            << QByteArray("?a=&b&c=");
        QTest::newRow("no value comes first")
            << Items{item(u"b"_s, std::nullopt), item(u"a"_s, u"1"_s)} << QByteArray("?b&a=1");
        QTest::newRow("unreserved")
            << Items{item(u"a-._~Z9"_s, u"AZaz09-._~"_s)} << QByteArray("?a-._~Z9=AZaz09-._~");
        QTest::newRow("delimiters")
            << Items{item(u"a&b=c"_s, u"+ &=#?/%;:@!$'()*,[]\"<>\\^`{|}"_s)}
            << QByteArray("?a%26b%3Dc=%2B%20%26%3D%23%3F%2F%25%3B%3A%40%21%24%27%28%29%2A%2C%5B%5D"
                          "%22%3C%3E%5C%5E%60%7B%7C%7D");
        QTest::newRow("what looks encoded")
            << Items{item(u"a"_s, u"%41%zz%"_s)} << QByteArray("?a=%2541%25zz%25");
        QTest::newRow("controls and zero")
            << Items{item(u"a"_s, QString(u"\r\n\0\x7f"_s))} << QByteArray("?a=%0D%0A%00%7F");
        QTest::newRow("beyond ASCII")
            << Items{item(u"ä"_s, u"é€😀"_s)} << QByteArray("?%C3%A4=%C3%A9%E2%82%AC%F0%9F%98%80");
    }

    void encodes()
    {
        QFETCH(Items, items);
        QFETCH(QByteArray, query);
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
