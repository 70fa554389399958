// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

/// A value of a property list, or nothing. Copies share their content.
///
/// The formats: "bplist00" as in the platform's published CFBinaryPList.c, and XML by the public
/// DTD PropertyList-1.0. Values of every type of the format are written again unchanged, even those
/// that have no accessor here.
class PropertyList {
public:
    /// The maximum length of a list in bytes.
    static constexpr qsizetype maximumLength = qsizetype{64} * 1024;

    /// The numbers of the types in the binary format, the upper half of a value's marker.
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

    /// Reads the binary or the XML format. Nil for any other data, for data longer than
    /// `maximumLength`, and for more than 64 levels of nesting. Time and memory are proportional to
    /// the length, for malicious data too.
    [[nodiscard]] static std::optional<PropertyList> fromData(const QByteArray &data);
    /// The binary format. Equal values are written once.
    [[nodiscard]] QByteArray toData() const;

    PropertyList() = default;
    /// A value in terms of the binary format. `content`: the bytes of a plain value, without marker
    /// and length. `items`: the items of a container; those of a dictionary alternate between keys,
    /// which are texts, and values.
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

    /// The first value under `key`; nothing if it is absent or this is not a dictionary.
    [[nodiscard]] PropertyList item(const QString &key) const;
    /// The first value under each key; empty if this is not a dictionary.
    [[nodiscard]] QMap<QString, PropertyList> itemsByKey() const;
    /// Empty if this is not an array.
    [[nodiscard]] QList<PropertyList> elements() const;

    /// Nil for a value of another type.
    [[nodiscard]] std::optional<bool> boolean() const;
    /// The lower 64 bits of a longer integer.
    [[nodiscard]] std::optional<qint64> integer() const;
    [[nodiscard]] std::optional<double> real() const;
    [[nodiscard]] std::optional<QString> string() const;
    [[nodiscard]] std::optional<QByteArray> data() const;
    [[nodiscard]] std::optional<NSDate> date() const;
    /// A UID, or a dictionary whose only key is "CF$UID".
    [[nodiscard]] std::optional<quint64> uid() const;

    /// Only for a dictionary; replaces all values under `key`.
    void insert(const QString &key, const PropertyList &item);
    /// Only for a dictionary; removes all values under `key`.
    void remove(const QString &key);
    /// Only for an array.
    void append(const PropertyList &item) { m_items.append(item); }

private:
    Type m_type = Type::Nothing;
    QByteArray m_content;
    QList<PropertyList> m_items;
};
