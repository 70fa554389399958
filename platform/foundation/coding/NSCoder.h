// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QMap>
#include <QString>

#include <optional>
#include <variant>

/// The keyed values of one object. A record writes them in encodeWithCoder and reads them in
/// initWithCoder; NSKeyedArchiver and NSKeyedUnarchiver convert them to bytes and back.
///
/// Decoding never fails: an absent key, nil and a value of another type decode as nil, 0 or false.
class NSCoder {
public:
    /// monostate is nil. An archive stores a bool in place and all others as objects.
    using Value = std::variant<std::monostate, bool, qint64, double, QString, NSDate>;

    /// Sets the object or nil under `key`, and replaces an earlier value.
    void encodeObject(const QString &text, const QString &key);
    void encodeObject(const std::optional<QString> &text, const QString &key);
    void encodeObject(const std::optional<NSDate> &date, const QString &key);
    void encodeObject(int number, const QString &key);
    void encodeObject(bool, const QString &) = delete;
    void encodeBool(bool value, const QString &key);
    void encodeValue(const Value &value, const QString &key);

    /// A text, or the decimal text of a number.
    [[nodiscard]] std::optional<QString> decodeStringForKey(const QString &key) const;
    /// The intValue of a number or a text (see NumberReading.h); 1 for true.
    [[nodiscard]] int decodeIntForKey(const QString &key) const;
    [[nodiscard]] std::optional<NSDate> decodeDateForKey(const QString &key) const;
    /// True for true and for a number other than 0.
    [[nodiscard]] bool decodeBoolForKey(const QString &key) const;

    [[nodiscard]] const QMap<QString, Value> &values() const { return m_values; }

private:
    QMap<QString, Value> m_values;
};
