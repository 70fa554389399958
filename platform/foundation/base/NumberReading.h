// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

/// The platform's forgiving readings of numbers, over decoded JSON values.

/// Blanks, an optional sign and decimal digits, whatever follows them; 0 without digits.
/// Beyond 32 bits the nearest of INT_MIN and INT_MAX.
[[nodiscard]] int intValue(const QString &text);

/// Truncated towards 0; beyond 32 bits the nearest of INT_MIN and INT_MAX.
[[nodiscard]] int intValue(double number);

/// A number or a text as above; true is 1; false, null, list, object and a missing value are 0.
[[nodiscard]] int intValue(const QJsonValue &value);

/// True for a number other than 0, for true, and for a text that, after leading blanks, signs and
/// zeros, begins with Y, y, T, t or a digit from 1 to 9; false for everything else.
[[nodiscard]] bool boolValue(const QJsonValue &value);

/// Text as it stands, a number as its decimal text (no exponent, a whole number without decimals);
/// nil for everything else.
[[nodiscard]] std::optional<QString> textValue(const QJsonValue &value);

/// The decimal text of a number, as short as reads back the same.
[[nodiscard]] QString textValue(double number);
