// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/foundation/url/NSURLComponents.h"

using namespace Qt::StringLiterals;

class URLComponentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void encodesItems()
    {
        NSURLComponents components;
        components.setScheme(u"https"_s);
        components.setHost(u"localhost"_s);
        components.setPath(u"/a b/ü.php"_s);
        const auto url = [&](const QList<NSURLQueryItem> &items) {
            components.setQueryItems(items);
            return components.URL();
        };
        QCOMPARE(url({{u"b&=c"_s, u"+ &=#?/%;:@!$'()*,[]\"<>\\^`{|}"_s},
                      {u"a-._~Z9"_s, u"AZaz09-._~"_s},
                      {u"b"_s, u"%41é€😀\r\n\0\x7f"_s},
                      {u"b"_s, u""_s},
                      {u"c"_s, std::nullopt}}),
                 "https://localhost/a%20b/%C3%BC.php"
                 "?b%26%3Dc=%2B%20%26%3D%23%3F%2F%25%3B%3A%40%21%24%27%28%29%2A%2C%5B%5D"
                 "%22%3C%3E%5C%5E%60%7B%7C%7D&a-._~Z9=AZaz09-._~"
                 "&b=%2541%C3%A9%E2%82%AC%F0%9F%98%80%0D%0A%00%7F&b=&c");
        const QString loneSurrogate(QChar(0xd800));
        QVERIFY(!url({{loneSurrogate, std::nullopt}}) && !url({{u"a"_s, loneSurrogate}}));
    }
};

WZT_TEST(URLComponentsTest)
#include "URLComponentsTest.moc"
