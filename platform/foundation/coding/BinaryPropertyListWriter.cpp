// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/BigEndian.h"
#include "platform/foundation/coding/BinaryLayout.h"
#include "platform/foundation/coding/PropertyListFormats.h"

#include <QHash>

#include <bit>
#include <vector>

namespace {

using namespace BinaryLayout;
using Type = PropertyList::Type;

QByteArray marker(Type type, int low)
{
    return QByteArray(1, static_cast<char>(static_cast<int>(type) << 4 | low));
}

/// The marker of a value, and the size that follows it. `count`: of bytes, characters, items or
/// pairs.
QByteArray markerOf(Type type, qsizetype count)
{
    const int size = bytesNeededFor(static_cast<quint64>(count));
    if (!hasCount(type)) {
        return marker(type,
                      type == Type::UID ? static_cast<int>(count) - 1
                                        : std::countr_zero(static_cast<quint64>(count)));
    }
    return count < countFollows ? marker(type, static_cast<int>(count))
                                : marker(type, countFollows) + markerOf(Type::Integer, size)
            + bigEndian(static_cast<quint64>(count), size);
}

class Writer {
public:
    QByteArray data(const PropertyList &list)
    {
        add(list);
        const int referenceSize = bytesNeededFor(m_objects.size() - 1);
        QByteArray data = signature;
        QList<qsizetype> offsets;
        for (const Object &object : m_objects) {
            offsets.append(data.size());
            data += object.start;
            for (const quint64 reference : object.references) {
                data += bigEndian(reference, referenceSize);
            }
        }
        const auto table = static_cast<quint64>(data.size());
        const int offsetSize = bytesNeededFor(table);
        for (const qsizetype offset : offsets) {
            data += bigEndian(static_cast<quint64>(offset), offsetSize);
        }
        return data + QByteArray(6, '\0') + static_cast<char>(offsetSize)
            + static_cast<char>(referenceSize) + bigEndian(m_objects.size(), 8) + bigEndian(0, 8)
            + bigEndian(table, 8);
    }

private:
    struct Object {
        /// The marker, and the content of a plain value.
        QByteArray start;
        QList<quint64> references;
    };

    /// Writes equal plain values as one object, and containers that share their items as well.
    quint64 add(const PropertyList &value)
    {
        const void *items = value.items().isEmpty() ? nullptr : value.items().constData();
        const QByteArray identity = marker(value.type(), 0)
            + (value.isContainer()
                   ? QByteArray(reinterpret_cast<const char *>(&items), sizeof items)
                   : value.content());
        if (const auto known = m_indices.constFind(identity); known != m_indices.constEnd()) {
            return *known;
        }
        const quint64 index = m_objects.size();
        m_indices.insert(identity, index);
        m_objects.emplace_back();
        m_objects[index] = value.isContainer() ? container(value) : plain(value);
        return index;
    }

    static Object plain(const PropertyList &value)
    {
        if (value.type() == Type::Simple) {
            return {value.content(), {}};
        }
        const qsizetype size = value.content().size();
        return {markerOf(value.type(), value.type() == Type::UTF16 ? size / 2 : size)
                    + value.content(),
                {}};
    }

    Object container(const PropertyList &value)
    {
        const QList<PropertyList> &items = value.items();
        const qsizetype step = value.isDictionary() ? 2 : 1;
        Object result{markerOf(value.type(), items.size() / step), {}};
        for (qsizetype first = 0; first < step; ++first) {
            for (qsizetype i = first; i < items.size(); i += step) {
                result.references.append(add(items[i]));
            }
        }
        return result;
    }

    std::vector<Object> m_objects;
    QHash<QByteArray, quint64> m_indices;
};

} // namespace

QByteArray PropertyListFormats::writeBinary(const PropertyList &list)
{
    return Writer().data(list);
}
