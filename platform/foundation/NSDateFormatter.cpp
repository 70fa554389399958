// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSDateFormatter.h"

#include <QByteArray>

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <memory>

namespace {

/// From 1970-01-01, ICU's epoch, to 2001-01-01.
constexpr double referenceDate = 978307200;
/// Formatters kept for each thread; the oldest goes first.
constexpr size_t cacheSize = 8;

/// What one ICU formatter was made for, so that a change of the device's settings is noticed.
struct Key {
    QString format;
    NSDateFormatterStyle style;
    QByteArray locale;
    QByteArray timeZone;

    bool operator==(const Key &) const = default;
};

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
    // The C locale is none of ICU's, which would show months as "M11".
    const bool plain = name == "C" || name.startsWith("C.") || name == "POSIX";
    return icu::Locale::createCanonical(plain ? "en_US_POSIX" : name.constData());
}

std::unique_ptr<icu::DateFormat> make(const Key &key)
{
    const icu::Locale locale = localeOf(key.locale);
    std::unique_ptr<icu::DateFormat> formatter;
    UErrorCode status = U_ZERO_ERROR;
    if (key.style == NSDateFormatterStyle::Medium) {
        formatter.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));
    } else {
        const icu::UnicodeString pattern(QStringView(key.format).utf16(), int(key.format.size()));
        formatter = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
    }
    if (!formatter || U_FAILURE(status)) {
        return nullptr;
    }
    formatter->adoptTimeZone(icu::TimeZone::detectHostTimeZone());
    formatter->setLenient(false);
    for (const UDateFormatBooleanAttribute attribute :
         {UDAT_PARSE_ALLOW_WHITESPACE, UDAT_PARSE_ALLOW_NUMERIC, UDAT_PARSE_PARTIAL_LITERAL_MATCH,
          UDAT_PARSE_MULTIPLE_PATTERNS_FOR_MATCH}) {
        formatter->setBooleanAttribute(attribute, false, status);
    }
    return formatter;
}

/// Null when ICU cannot make sense of the format.
icu::DateFormat *shared(const Key &key)
{
    struct Entry {
        Key key;
        std::unique_ptr<icu::DateFormat> formatter;
    };
    thread_local std::deque<Entry> cache;
    const auto known =
        std::find_if(cache.begin(), cache.end(), [&](const Entry &e) { return e.key == key; });
    if (known != cache.end()) {
        return known->formatter.get();
    }
    if (cache.size() == cacheSize) {
        cache.pop_front();
    }
    cache.push_back({key, make(key)});
    return cache.back().formatter.get();
}

icu::DateFormat *sharedFor(const QString &format, NSDateFormatterStyle style)
{
    const bool isSet = !format.isEmpty() || style != NSDateFormatterStyle::None;
    return isSet ? shared({format, style, deviceLocale(), qgetenv("TZ")}) : nullptr;
}

} // namespace

void NSDateFormatter::setDateFormat(const QString &format)
{
    m_format = format;
    m_style = NSDateFormatterStyle::None;
}

void NSDateFormatter::setDateStyle(NSDateFormatterStyle style)
{
    m_format.clear();
    m_style = style;
}

std::optional<NSDate> NSDateFormatter::dateFromString(const QString &text) const
{
    const icu::DateFormat *formatter = sharedFor(m_format, m_style);
    if (!formatter) {
        return std::nullopt;
    }
    const icu::UnicodeString source(QStringView(text).utf16(), int(text.size()));
    icu::ParsePosition position(0);
    const UDate milliseconds = formatter->parse(source, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != source.length()
        || source.isEmpty()) {
        return std::nullopt;
    }
    return NSDate{milliseconds / 1000 - referenceDate};
}

QString NSDateFormatter::stringFromDate(const NSDate &date) const
{
    const icu::DateFormat *formatter = sharedFor(m_format, m_style);
    if (!formatter || !std::isfinite(date.timeIntervalSinceReferenceDate)) {
        return {};
    }
    icu::UnicodeString text;
    formatter->format((date.timeIntervalSinceReferenceDate + referenceDate) * 1000, text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}
