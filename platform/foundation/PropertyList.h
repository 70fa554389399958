// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/NSDate.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <memory>
#include <optional>

/// A value within a PropertyList, or nothing. Valid as long as the list is.
class PropertyListNode {
public:
    explicit PropertyListNode(void *node = nullptr) : m_node(node) {}

    [[nodiscard]] bool isPresent() const { return m_node != nullptr; }
    [[nodiscard]] bool isDictionary() const;
    [[nodiscard]] bool isArray() const;

    /// Empty for anything but a dictionary.
    [[nodiscard]] QMap<QString, PropertyListNode> items() const;
    /// Nothing when this is no dictionary or does not have the key. Takes longer the longer the
    /// dictionary is; so do the other look-ups of the library, which is why there are no more.
    [[nodiscard]] PropertyListNode item(const QString &key) const;
    /// Empty for anything but an array.
    [[nodiscard]] QList<PropertyListNode> elements() const;

    /// Each is nil for a value of another type.
    [[nodiscard]] std::optional<bool> boolean() const;
    [[nodiscard]] std::optional<qint64> integer() const;
    [[nodiscard]] std::optional<double> real() const;
    [[nodiscard]] std::optional<QString> string() const;
    [[nodiscard]] std::optional<QByteArray> data() const;
    [[nodiscard]] std::optional<NSDate> date() const;
    /// A UID, or a dictionary whose only key is "CF$UID".
    [[nodiscard]] std::optional<quint64> uid() const;

    /// The binary form of this value alone.
    [[nodiscard]] QByteArray toData() const;

protected:
    void *m_node;
};

/// A property list, or a value to be put into one.
class PropertyList : public PropertyListNode {
public:
    /// Binary or XML. Nil for anything else; hostile data does no harm.
    [[nodiscard]] static std::optional<PropertyList> fromData(const QByteArray &data);
    [[nodiscard]] static PropertyList dictionary();
    [[nodiscard]] static PropertyList array();
    [[nodiscard]] static PropertyList uid(quint64 uid);
    explicit PropertyList(bool value);
    explicit PropertyList(qint64 value);
    explicit PropertyList(double value);
    explicit PropertyList(const QByteArray &value);
    /// Null characters end the text.
    explicit PropertyList(const QString &value);

    /// Only for a dictionary; replaces what was under `key`.
    void insert(const QString &key, PropertyList item);
    void remove(const QString &key);
    /// Only for an array.
    void append(PropertyList item);

private:
    struct Freer {
        void operator()(void *node) const;
    };
    struct Adopt {};
    PropertyList(Adopt, void *node) : PropertyListNode(node), m_owned(node) {}
    void *release();

    std::unique_ptr<void, Freer> m_owned;
};
