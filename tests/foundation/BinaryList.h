// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// Composes binary property lists with references and offsets of four bytes.
namespace BinaryList {

inline QByteArray number(quint64 value, int size)
{
    QByteArray bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, value >>= 8) {
        *byte = static_cast<char>(value);
    }
    return bytes;
}

inline QByteArray reference(qsizetype index)
{
    return number(static_cast<quint64>(index), 4);
}

/// A text, and data, of these few bytes.
inline QByteArray ascii(const QByteArray &bytes)
{
    return static_cast<char>(0x50 + bytes.size()) + bytes;
}
inline QByteArray data(const QByteArray &bytes)
{
    return static_cast<char>(0x40 + bytes.size()) + bytes;
}

/// The list of the objects at `offsets` in `objects`; the first is the top.
inline QByteArray around(const QByteArray &objects, const QList<qsizetype> &offsets, quint64 count)
{
    QByteArray data = "bplist00" + objects;
    const QByteArray table = number(static_cast<quint64>(data.size()), 8);
    for (const qsizetype offset : offsets) {
        data += number(static_cast<quint64>(offset) + 8, 4);
    }
    return data + QByteArray(6, '\0') + "\4\4" + number(count, 8) + number(0, 8) + table;
}

/// The list of these objects, with `count` as their declared number.
inline QByteArray of(const QByteArrayList &objects, quint64 count)
{
    QList<qsizetype> offsets;
    qsizetype offset = 0;
    for (const QByteArray &object : objects) {
        offsets.append(offset);
        offset += object.size();
    }
    return around(objects.join(), offsets, count);
}

inline QByteArray of(const QByteArrayList &objects)
{
    return of(objects, static_cast<quint64>(objects.size()));
}

} // namespace BinaryList
