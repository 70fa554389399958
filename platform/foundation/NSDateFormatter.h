// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/NSDate.h"

#include <QString>

#include <optional>

enum class NSDateFormatterStyle { None, Medium };

/// Dates as text and back, in the device's locale (the first of LC_ALL, LC_TIME and LANG that is
/// set) and time zone (TZ or else the system's) at the time of use. Cheap to make and to copy: what
/// is expensive about it is kept for each thread, locale, time zone and format, and shared by every
/// formatter that asks for the same.
class NSDateFormatter {
public:
    /// Unicode date pattern, for example "yyyy-MM-dd HH:mm:ss"; replaces a style.
    void setDateFormat(const QString &format);
    /// The locale's date in that style, without a time; replaces a pattern.
    /// None, as at first, gives empty texts and reads nothing.
    void setDateStyle(NSDateFormatterStyle style);

    /// The moment that `text` names, nil unless the whole of it matches. Not lenient: days, times
    /// and hours skipped by summer time that do not exist give nil, and a field of two letters has
    /// at least two digits. Of an hour that occurs twice the later is meant. What ICU reads
    /// nevertheless: digits of any script, and blanks before the text or more than one within it
    /// (but none after it).
    [[nodiscard]] std::optional<NSDate> dateFromString(const QString &text) const;

    [[nodiscard]] QString stringFromDate(const NSDate &date) const;

private:
    QString m_format;
    NSDateFormatterStyle m_style = NSDateFormatterStyle::None;
};
