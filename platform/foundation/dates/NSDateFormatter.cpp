// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/dates/NSDateFormatter.h"

#include "platform/foundation/dates/DateFields.h"
#include "platform/foundation/dates/LocalTime.h"

#include <QByteArray>

#include <unicode/datefmt.h>
#include <unicode/gregocal.h>

#include <chrono>
#include <cmath>
#include <memory>

namespace {

/// From 1970-01-01 to 2001-01-01.
constexpr double referenceDate = 978307200;
constexpr double millisecondsPerSecond = 1000;
/// Beyond every date that can be shown.
constexpr double farthest = 1e15;

QByteArray deviceLocale()
{
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty()) {
            return name;
        }
    }
    return "C";
}

icu::Locale localeOf(const QByteArray &name)
{
    // ICU does not have the C locale, and would show months as "M11".
    const bool plain = name == "C" || name.startsWith("C.") || name == "POSIX";
    return icu::Locale::createCanonical(plain ? "en_US_POSIX" : name.constData());
}

/// The thread's format for local times in the device's locale; null if ICU has none. It is cached,
/// because making one is slow.
const icu::DateFormat *localFormat()
{
    thread_local QByteArray knownLocale;
    thread_local std::unique_ptr<icu::DateFormat> known;
    const QByteArray locale = deviceLocale();
    if (locale != knownLocale) {
        known.reset(
            icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, localeOf(locale)));
        if (known) {
            known->setTimeZone(*icu::TimeZone::getGMT());
        }
        knownLocale = locale;
    }
    return known.get();
}

/// A Gregorian calendar that refuses dates that do not exist; null without memory.
std::unique_ptr<icu::Calendar> makeCalendar()
{
    UErrorCode status = U_ZERO_ERROR;
    auto calendar = std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), status);
    calendar->setLenient(false);
    return U_SUCCESS(status) ? std::move(calendar) : nullptr;
}

/// The same as calendarTimeOf, for the years in which the calendars of ICU and of std::chrono
/// agree: ICU's is the Julian one until 1582, and ends.
std::optional<qint64> gregorianTimeOf(const DateFields &fields)
{
    using namespace std::chrono;
    // A month or a day of 257 would be taken for the first.
    if (fields.month > 12 || fields.day > 31 || fields.hour > 23 || fields.minute > 59
        || fields.second > 59) {
        return std::nullopt;
    }
    const year_month_day date(year(fields.year), month(static_cast<unsigned>(fields.month)),
                              day(static_cast<unsigned>(fields.day)));
    const sys_seconds time =
        sys_days(date) + hours(fields.hour) + minutes(fields.minute) + seconds(fields.second);
    return date.ok() ? std::optional(qint64{time.time_since_epoch().count()}) : std::nullopt;
}

/// The same for every year. Slow.
std::optional<qint64> calendarTimeOf(const DateFields &fields)
{
    thread_local const std::unique_ptr<icu::Calendar> calendar = makeCalendar();
    if (!calendar) {
        return std::nullopt;
    }
    UErrorCode status = U_ZERO_ERROR;
    calendar->clear();
    calendar->set(fields.year, fields.month - 1, fields.day, fields.hour, fields.minute,
                  fields.second);
    const UDate milliseconds = calendar->getTime(status);
    return U_SUCCESS(status)
        ? std::optional(static_cast<qint64>(milliseconds / millisecondsPerSecond))
        : std::nullopt;
}

/// The local time with these fields, in seconds; nil if it does not exist.
std::optional<qint64> localTimeOf(const DateFields &fields)
{
    const bool isSimple = fields.year > 1582 && fields.year < 10000;
    return isSimple ? gregorianTimeOf(fields) : calendarTimeOf(fields);
}

} // namespace

std::optional<NSDate> NSDateFormatter::dateFromString(const QString &text) const
{
    const auto fields = m_format.isEmpty() ? std::nullopt : readDateFields(m_format, text);
    const auto local = fields ? localTimeOf(*fields) : std::nullopt;
    const auto utc = local ? LocalTime::toUtc(*local) : std::nullopt;
    return utc ? std::optional(NSDate{static_cast<double>(*utc) - referenceDate}) : std::nullopt;
}

QString NSDateFormatter::stringFromDate(const NSDate &date) const
{
    const double utc = std::floor(date.timeIntervalSinceReferenceDate + referenceDate);
    if (m_style == NSDateFormatterStyle::None || !(std::abs(utc) < farthest)) {
        return {};
    }
    const auto local = LocalTime::fromUtc(static_cast<qint64>(utc));
    const icu::DateFormat *formatter = local ? localFormat() : nullptr;
    if (!formatter) {
        return {};
    }
    icu::UnicodeString text;
    formatter->format(static_cast<double>(*local) * millisecondsPerSecond, text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}
