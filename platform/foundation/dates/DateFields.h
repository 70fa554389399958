// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// The fields of a date and a time as a text has them; the date need not exist.
struct DateFields {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Reads `text` by a numeric pattern such as "yyyy-MM-dd HH:mm:ss" (letters of Unicode TS #35): the
/// letters y, M, d, H, m and s, each repeated for the minimum number of digits, separated by other
/// characters. Fields that are not in the pattern default to midnight on 1970-01-01.
///
/// Accepts digits of any script, more digits than the minimum, and blanks before a field. Nil for
/// any other deviation, and for a pattern with other letters.
[[nodiscard]] std::optional<DateFields> readDateFields(const QString &pattern, const QString &text);
