// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSDateFormatter.h"
#include "tests/support/TestRunner.h"

#include <QDateTime>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr char berlin[] = "Europe/Berlin";

NSDate utc(const char *isoDate)
{
    const QDateTime date = QDateTime::fromString(QLatin1StringView(isoDate), Qt::ISODate);
    return NSDate{double(date.toSecsSinceEpoch()) - 978307200};
}

/// Sets a variable of the environment for one scope.
[[nodiscard]] auto scopedVariable(const char *name, const QByteArray &value)
{
    const QByteArray previous = qgetenv(name);
    qputenv(name, value);
    return qScopeGuard([name, previous] { qputenv(name, previous); });
}

} // namespace

class DateFormatterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads()
    {
        const struct {
            const char *text;
            const char *moment;
            const char *zone = berlin;
        } rows[] = {
            {"2019-08-14 17:05:09", "2019-08-14T15:05:09Z"},
            {"2019-08-14 17:05:09", "2019-08-14T08:05:09Z", "Asia/Tokyo"},
            {"2019-08-14 17:05:09", "2019-08-14T17:05:09Z", "UTC"},
            {"2020-02-29 00:00:00", "2020-02-28T23:00:00Z"},
            {"1969-12-31 12:00:00", "1969-12-31T11:00:00Z"},
            {"2019-10-27 02:30:00", "2019-10-27T01:30:00Z"}, // occurs twice: the later
            {"2019-03-31 02:30:00", "2019-03-31T02:30:00Z", "UTC"},
            {"٢٠١٩-٠٨-١٤ ١٧:٠٥:٠٩", "2019-08-14T15:05:09Z"},
        };
        NSDateFormatter formatter;
        formatter.setDateFormat(u"yyy-MM-dd HH:mm:ss"_s);
        for (const auto &[text, moment, zone] : rows) {
            formatter.setTimeZone(QString::fromLatin1(zone));
            QCOMPARE(formatter.dateFromString(QString::fromUtf8(text)), utc(moment));
        }
    }

    void refuses()
    {
        NSDateFormatter formatter;
        formatter.setDateFormat(u"yyy-MM-dd HH:mm:ss"_s);
        formatter.setTimeZone(QString::fromLatin1(berlin));
        for (const char *text :
             {"", "now", "2019-08-14", "14/08/2019 17:05", "2019-08-14 17:05",
              "2019-08-14T17:05:09", "2019-08-14 17:05:09 ", "2019-08-14 17:05:09Z",
              "2019-08-14 17:05:09.5", "2019-Aug-14 17:05:09", "2019-8-4 7:5:9",
              "0000-00-00 00:00:00", "2019-02-29 10:00:00", "2019-04-31 10:00:00",
              "2019-13-01 10:00:00", "2019-08-14 24:00:00", "2019-08-14 23:60:00",
              "2019-08-14 23:59:60", "2019-03-31 02:30:00" /* skipped by summer time */})
            QVERIFY2(!formatter.dateFromString(QString::fromLatin1(text)), text);
    }

    void writesWhatItReads()
    {
        NSDateFormatter formatter;
        formatter.setDateFormat(u"yyyy-MM-dd HH:mm:ss"_s);
        formatter.setLocale(u"en_US"_s);
        formatter.setTimeZone(u"Asia/Tokyo"_s);
        const NSDate date = utc("2019-08-14T08:05:09Z");
        QCOMPARE(formatter.stringFromDate(date), u"2019-08-14 17:05:09"_s);
        QCOMPARE(formatter.dateFromString(formatter.stringFromDate(date)), date);
        QCOMPARE(formatter.stringFromDate({qQNaN()}), QString());
    }

    /// The device's settings count at the time of each use, in the order of their precedence.
    void followsTheEnvironment()
    {
        const auto language = scopedVariable("LANG", "ja_JP.UTF-8");
        const auto time = scopedVariable("LC_TIME", "");
        const auto all = scopedVariable("LC_ALL", "");
        NSDateFormatter style;
        QCOMPARE(style.stringFromDate(utc("2026-11-16T12:00:00Z")), QString()); // no style yet
        style.setDateStyle(NSDateFormatterStyle::Medium);
        NSDateFormatter format;
        format.setDateFormat(u"HH:mm"_s);
        const NSDate date = utc("2026-11-16T23:30:00Z");
        {
            const auto zone = scopedVariable("TZ", "Asia/Tokyo");
            QCOMPARE(style.stringFromDate(date), u"2026/11/17"_s);
            QCOMPARE(format.stringFromDate(date), u"08:30"_s);
        }
        const auto zone = scopedVariable("TZ", "America/New_York");
        QCOMPARE(style.stringFromDate(date), u"2026/11/16"_s);
        QCOMPARE(format.stringFromDate(date), u"18:30"_s);
        const auto german = scopedVariable("LC_TIME", "de_DE.UTF-8");
        QCOMPARE(style.stringFromDate(date), u"16.11.2026"_s);
        const auto american = scopedVariable("LC_ALL", "en_US.UTF-8");
        QCOMPARE(style.stringFromDate(date), u"Nov 16, 2026"_s);
        style.setLocale(u"de_DE.UTF-8@euro"_s); // its own over all of them
        QCOMPARE(style.stringFromDate(date), u"16.11.2026"_s);
    }
};

WZT_TEST(DateFormatterTest)
#include "DateFormatterTest.moc"
