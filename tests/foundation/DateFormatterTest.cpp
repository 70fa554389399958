// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/foundation/dates/NSDateFormatter.h"

#include <QDateTime>

#include <map>

using namespace Qt::StringLiterals;

namespace {

NSDate utc(const char *isoDate)
{
    const QDateTime date = QDateTime::fromString(QLatin1StringView(isoDate), Qt::ISODate);
    return NSDate{static_cast<double>(date.toSecsSinceEpoch()) - 978307200};
}

NSDateFormatter serviceFormatter()
{
    NSDateFormatter formatter;
    formatter.setDateFormat(u"yyy-MM-dd HH:mm:ss"_s);
    return formatter;
}

} // namespace

/// The device's settings change between the rows; each test begins in Berlin.
class DateFormatterTest : public QObject {
    Q_OBJECT

    std::map<const char *, QByteArray> m_settings;

private Q_SLOTS:
    void init()
    {
        for (const char *name : {"LC_ALL", "LC_TIME", "LANG", "TZ"}) {
            m_settings[name] = qgetenv(name);
        }
    }

    void cleanup()
    {
        for (const auto &[name, value] : m_settings) {
            qputenv(name, value);
        }
    }

    void reads()
    {
        const std::pair<const char *, const char *> rows[] = {
            {"2019-08-14 17:05:09", "2019-08-14T15:05:09Z"},
            {"2020-02-29 00:00:00", "2020-02-28T23:00:00Z"},
            {"1969-12-31 12:00:00", "1969-12-31T11:00:00Z"},
            {"1500-02-29 12:00:00", "1500-03-10T11:06:32Z"}, // in the Julian calendar
            {"2019-10-27 02:30:00", "2019-10-27T01:30:00Z"}, // occurs twice: the later
            {"٢٠١٩-٠٨-١٤ ١٧:٠٥:٠٩", "2019-08-14T15:05:09Z"},
        };
        const NSDateFormatter formatter = serviceFormatter();
        // Most of these locales do not use the Gregorian calendar.
        for (const char *locale : {"th_TH.UTF-8", "fa_IR.UTF-8", "ar_SA", "en_US.UTF-8", "C"}) {
            qputenv("LC_ALL", locale);
            for (const auto &[text, moment] : rows) {
                QCOMPARE(formatter.dateFromString(QString::fromUtf8(text)), utc(moment));
            }
        }
    }

    void readsInTheZoneOfThatMoment()
    {
        const char posixRule[] = "CET-1CEST,M3.5.0,M10.5.0/3";
        const std::tuple<const char *, const char *, const char *> changes[] = {
            {"Asia/Tokyo", "2019-08-14 17:05:09", "2019-08-14T08:05:09Z"},
            {"Asia/Kolkata", "2019-08-14 17:05:09", "2019-08-14T11:35:09Z"},
            {posixRule, "2019-08-14 17:05:09", "2019-08-14T15:05:09Z"},
            {posixRule, "2019-01-14 17:05:09", "2019-01-14T16:05:09Z"},
            {posixRule, "2019-10-27 02:30:00", "2019-10-27T01:30:00Z"},
            {"<-03>3", "2019-08-14 17:05:09", "2019-08-14T20:05:09Z"},
            {"Australia/Lord_Howe", "2019-04-07 01:45:00", "2019-04-06T15:15:00Z"}, // the later
            {"Pacific/Apia", "2011-12-31 00:00:00", "2011-12-30T10:00:00Z"}, // after a day skipped
        };
        for (const auto &[zone, text, moment] : changes) {
            qputenv("TZ", zone);
            QCOMPARE(serviceFormatter().dateFromString(QString::fromLatin1(text)), utc(moment));
        }
        QVERIFY(!serviceFormatter().dateFromString(u"2011-12-30 12:00:00"_s));
    }

    void refuses()
    {
        // Nothing, no date, a wrong form, no such moment, too few digits, and far too many.
        const QString texts =
            u"|now|2019-08-14|14/08/2019 17:05|2019-08-14 17:05|2019-08-14T17:05:09|"
            "2019-08-14 17:05:09 |2019-08-14 17:05:09Z|2019-08-14 17:05:09.5|2019-Aug-14 17:05:09|"
            "2019-08-14 17:05:09e0|0000-00-00 00:00:00|2019-02-29 10:00:00|2019-13-01 10:00:00|"
            "1700-02-29 10:00:00|2019-257-14 10:00:00|2019-08-257 10:00:00|2019-08-14 24:00:00|"
            "2019-08-14 23:60:00|2019-08-14 23:59:60|2019-03-31 02:30:00|19-08-14 17:05:09|"
            "2019-8-14 17:05:09|2019-08-4 17:05:09|2019-08-14 7:05:09|2019-08-14 17:5:09|"
            "2019-08-14 17:05:9|4294969315-08-14 17:05:09|2019-4294967304-14 17:05:09"_s;
        for (const QString &text : texts.split(u'|')) {
            QVERIFY2(!serviceFormatter().dateFromString(text), qPrintable(text));
        }
    }

    void writesAsTheDeviceIsSetAtThatMoment()
    {
        const std::tuple<const char *, const char *, QString> changes[] = {
            {"TZ", "Asia/Tokyo", u"2026/11/17"_s},
            {"TZ", "America/New_York", u"2026/11/16"_s},
            {"LC_TIME", "de_DE.UTF-8", u"16.11.2026"_s},
            {"LC_ALL", "en_US.UTF-8", u"Nov 16, 2026"_s},
            {"LC_ALL", "C.UTF-8", u"Nov 16, 2026"_s},
            {"LC_ALL", "th_TH.UTF-8", u"16 พ.ย. 2569"_s}, // in the locale's own calendar
            {"TZ", "<+02>-2", u"17 พ.ย. 2569"_s},
        };
        qputenv("LANG", "ja_JP.UTF-8");
        qputenv("LC_TIME", "");
        qputenv("LC_ALL", "");
        NSDateFormatter formatter;
        formatter.setDateStyle(NSDateFormatterStyle::Medium);
        for (const auto &[name, value, text] : changes) {
            qputenv(name, value);
            QCOMPARE(formatter.stringFromDate(utc("2026-11-16T23:30:00Z")), text);
        }
        for (const double far : {qQNaN(), 1e18, -qInf()}) {
            QCOMPARE(formatter.stringFromDate({far}), QString());
        }
    }
};

WZT_TEST(DateFormatterTest)
#include "DateFormatterTest.moc"
