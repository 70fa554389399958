// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QMap>
#include <QString>

#include <optional>
#include <variant>

/// The keyed values of one object. A record's encodeWithCoder fills one, its initWithCoder reads
/// one; NSKeyedArchiver and NSKeyedUnarchiver turn it into bytes and back.
///
/// Reading never fails: an absent key, a nil and a value of another type all read as nil, 0 or
/// false.
class NSCoder {
public:
    /// monostate is nil. A bool stands for itself in an archive, the others are objects.
    using Value = std::variant<std::monostate, bool, qint64, double, QString, NSDate>;

    /// Puts an object, or nil, under `key`; a later value replaces an earlier one.
    void encodeObject(const QString &text, const QString &key);
    void encodeObject(const std::optional<QString> &text, const QString &key);
    void encodeObject(const std::optional<NSDate> &date, const QString &key);
    void encodeObject(int number, const QString &key);
    void encodeObject(bool, const QString &) = delete;
    void encodeBool(bool value, const QString &key);
    void encodeValue(const Value &value, const QString &key);

    /// Text as it stands, a number as its decimal text.
    [[nodiscard]] std::optional<QString> decodeStringForKey(const QString &key) const;
    /// The intValue of a number or a text (see NumberReading.h).
    [[nodiscard]] int decodeIntForKey(const QString &key) const;
    [[nodiscard]] std::optional<NSDate> decodeDateForKey(const QString &key) const;
    /// A number is true when it is not 0.
    [[nodiscard]] bool decodeBoolForKey(const QString &key) const;

    [[nodiscard]] const QMap<QString, Value> &values() const { return m_values; }

private:
    QMap<QString, Value> m_values;
};
