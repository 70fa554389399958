// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// A day and a time of it, as a text names them: nothing says yet that they exist.
struct DateFields {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The fields of `text` by a pattern of numbers such as "yyyy-MM-dd HH:mm:ss": the letters y, M, d,
/// H, m and s, each repeated as often as the field has digits at least, and between them anything
/// that is no letter. What the pattern leaves out is midnight on 1970-01-01.
///
/// Digits may be those of any script, a field may have more of them and blanks before it. Nil for
/// every other deviation, and for a pattern with another letter.
[[nodiscard]] std::optional<DateFields> readDateFields(const QString &pattern, const QString &text);
