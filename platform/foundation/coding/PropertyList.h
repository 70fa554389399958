// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

/// A value of a property list, or nothing. Copies share what they hold.
///
/// A value that was read is written again as it was, whether or not this class knows what it means.
class PropertyList {
public:
    /// In bytes; a longer list is not read.
    static constexpr qsizetype maximumLength = qsizetype{64} * 1024;

    /// As the upper half of the byte that begins a value in the binary form says it.
    enum class Type : uchar {
        Simple = 0x0,
        Integer = 0x1,
        Real = 0x2,
        Date = 0x3,
        Data = 0x4,
        ASCII = 0x5,
        UTF16 = 0x6,
        UID = 0x8,
        Array = 0xa,
        Set = 0xc,
        Dictionary = 0xd,
        Nothing = 0xf,
    };

    /// Binary or XML. Nil for anything else, and for what is longer than `maximumLength` or nested
    /// more than 64 deep. Takes time and memory in proportion to the length, whatever `data` is.
    [[nodiscard]] static std::optional<PropertyList> fromData(const QByteArray &data);
    /// The binary form. What a value holds twice is written once.
    [[nodiscard]] QByteArray toData() const;

    PropertyList() = default;
    /// A value as the binary form has it: `content` of all but containers, without the length that
    /// may stand before it; `items` of containers, those of a dictionary by turns a key, which is a
    /// text, and its value.
    PropertyList(Type type, QByteArray content, QList<PropertyList> items = {});
    explicit PropertyList(bool value);
    explicit PropertyList(qint64 value);
    explicit PropertyList(double value);
    explicit PropertyList(NSDate value);
    explicit PropertyList(const QByteArray &value) : PropertyList(Type::Data, value) {}
    explicit PropertyList(const QString &value);
    [[nodiscard]] static PropertyList reference(quint64 uid);
    [[nodiscard]] static PropertyList dictionary() { return {Type::Dictionary, {}}; }
    [[nodiscard]] static PropertyList array() { return {Type::Array, {}}; }

    [[nodiscard]] bool isPresent() const { return m_type != Type::Nothing; }
    [[nodiscard]] bool isDictionary() const { return m_type == Type::Dictionary; }
    [[nodiscard]] bool isText() const { return m_type == Type::ASCII || m_type == Type::UTF16; }
    [[nodiscard]] bool isContainer() const { return m_type >= Type::Array && isPresent(); }

    [[nodiscard]] Type type() const { return m_type; }
    [[nodiscard]] const QByteArray &content() const { return m_content; }
    [[nodiscard]] const QList<PropertyList> &items() const { return m_items; }

    /// The first value under `key`; nothing when this is no dictionary or does not have the key.
    [[nodiscard]] PropertyList item(const QString &key) const;
    /// The first value under each key. Empty for anything but a dictionary.
    [[nodiscard]] QMap<QString, PropertyList> itemsByKey() const;
    /// Empty for anything but an array.
    [[nodiscard]] QList<PropertyList> elements() const;

    /// Each is nil for a value of another type.
    [[nodiscard]] std::optional<bool> boolean() const;
    /// The lower 64 bits of a longer one.
    [[nodiscard]] std::optional<qint64> integer() const;
    [[nodiscard]] std::optional<double> real() const;
    [[nodiscard]] std::optional<QString> string() const;
    [[nodiscard]] std::optional<QByteArray> data() const;
    [[nodiscard]] std::optional<NSDate> date() const;
    /// A UID, or a dictionary whose only key is "CF$UID".
    [[nodiscard]] std::optional<quint64> uid() const;

    /// Only for a dictionary; replaces whatever was under `key`.
    void insert(const QString &key, const PropertyList &item);
    /// Only for a dictionary; a key that stands in it more than once goes altogether.
    void remove(const QString &key);
    /// Only for an array.
    void append(const PropertyList &item) { m_items.append(item); }

private:
    Type m_type = Type::Nothing;
    QByteArray m_content;
    QList<PropertyList> m_items;
};
