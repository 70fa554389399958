// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QString>

#include <optional>

enum class NSDateFormatterStyle { None, Medium };

/// Reads dates by a pattern and writes them in a style, by the device's locale (the first of
/// LC_ALL, LC_TIME and LANG that is set) and time zone (TZ, rules included, or else the system's)
/// at the time of use. Cheap to make and to copy. Any thread.
class NSDateFormatter {
public:
    /// The pattern to read by, of numbers: "yyyy-MM-dd HH:mm:ss", see readDateFields.
    void setDateFormat(const QString &format) { m_format = format; }
    /// The style to write in: the locale's date in its own calendar, without a time. None, as at
    /// first, gives empty texts.
    void setDateStyle(NSDateFormatterStyle style) { m_style = style; }

    /// The moment that `text` names in the Gregorian calendar, whatever the locale's, nil unless
    /// the whole of it matches. Not lenient: days, times and hours skipped by summer time that do
    /// not exist give nil, and a field has at least as many digits as the pattern has letters for
    /// it. Of an hour that occurs twice the later is meant. Read nevertheless: digits of any
    /// script, and blanks before a number (but none after the last).
    [[nodiscard]] std::optional<NSDate> dateFromString(const QString &text) const;

    [[nodiscard]] QString stringFromDate(const NSDate &date) const;

private:
    QString m_format;
    NSDateFormatterStyle m_style = NSDateFormatterStyle::None;
};
