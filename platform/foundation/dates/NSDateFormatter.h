// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QString>

#include <optional>

enum class NSDateFormatterStyle { None, Medium };

/// Reads dates by a pattern and writes them in a style. Each call uses the device's current locale
/// (the first of LC_ALL, LC_TIME and LANG that is set) and its current time zone (see LocalTime).
/// Cheap to make and to copy. Any thread.
class NSDateFormatter {
public:
    /// The pattern for reading, such as "yyyy-MM-dd HH:mm:ss"; see readDateFields.
    void setDateFormat(const QString &format) { m_format = format; }
    /// The style for writing: a date of the locale, in its calendar, without a time. With None, the
    /// default, texts are empty.
    void setDateStyle(NSDateFormatterStyle style) { m_style = style; }

    /// The date in the Gregorian calendar, for every locale. Nil unless the whole text matches the
    /// pattern (see readDateFields) and the date and time exist; summer time skips an hour. Of an
    /// hour that occurs twice it means the later.
    [[nodiscard]] std::optional<NSDate> dateFromString(const QString &text) const;

    [[nodiscard]] QString stringFromDate(const NSDate &date) const;

private:
    QString m_format;
    NSDateFormatterStyle m_style = NSDateFormatterStyle::None;
};
