// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

/// Lenient conversions of decoded JSON values, by the rules of the platform's NSString and
/// NSNumber.

/// Reads blanks, an optional sign and decimal digits, and ignores the rest; 0 without digits.
/// Clamped to INT_MIN and INT_MAX.
[[nodiscard]] int intValue(const QString &text);

/// Truncated towards 0, clamped to INT_MIN and INT_MAX; 0 for NaN.
[[nodiscard]] int intValue(double number);

/// A number or a text as above; 1 for true; 0 for false, null, a list, an object or no value.
[[nodiscard]] int intValue(const QJsonValue &value);

/// True for a number other than 0, for true, and for a text that, after leading blanks, signs and
/// zeros, begins with Y, y, T, t or a digit from 1 to 9; false for everything else.
[[nodiscard]] bool boolValue(const QJsonValue &value);

/// A text unchanged; a number in decimal notation without exponent, a whole one without decimals.
/// Nil for any other value.
[[nodiscard]] std::optional<QString> textValue(const QJsonValue &value);

/// The shortest decimal notation that reads back as the same number.
[[nodiscard]] QString textValue(double number);
