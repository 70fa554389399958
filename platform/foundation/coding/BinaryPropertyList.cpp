// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/BigEndian.h"
#include "platform/foundation/coding/PropertyListForms.h"

#include <QHash>

#include <bit>
#include <vector>

namespace {

using Type = PropertyList::Type;

constexpr char header[] = "bplist00";
constexpr quint64 trailerLength = 32;
/// The lower half of a marker when the count follows as an integer.
constexpr int countFollows = 0xf;

/// How many bytes follow a marker that says so itself; nil for one that the format does not have.
std::optional<int> fixedSize(Type type, int low)
{
    const bool isNumber = (type == Type::Integer && low <= 4)
        || (type == Type::Real && (low == 2 || low == 3)) || (type == Type::Date && low == 3);
    const bool isUID = type == Type::UID && low < 8;
    return isNumber ? std::optional(1 << low) : isUID ? std::optional(low + 1) : std::nullopt;
}

bool hasCount(Type type)
{
    return type == Type::Data || type == Type::ASCII || type == Type::UTF16 || type == Type::Array
        || type == Type::Set || type == Type::Dictionary;
}

/// Decodes each object that is reached, and each once, however often it is referred to.
class Reader {
public:
    explicit Reader(const QByteArray &data)
        : m_data(data), m_unread(static_cast<quint64>(data.size()))
    {
    }

    std::optional<PropertyList> list()
    {
        const quint64 trailer = m_unread - trailerLength;
        if (m_unread < trailerLength) {
            return std::nullopt;
        }
        m_offsetSize = number(trailer + 6, 1);
        m_referenceSize = number(trailer + 7, 1);
        const quint64 count = number(trailer + 8, 8);
        const quint64 top = number(trailer + 16, 8);
        m_offsets = number(trailer + 24, 8);
        if (count > static_cast<quint64>(m_data.size())) {
            return std::nullopt;
        }
        m_known.resize(static_cast<size_t>(count));
        const PropertyList list = object(top, 1).value;
        return m_valid ? std::optional(list) : std::nullopt;
    }

private:
    struct Object {
        PropertyList value;
        /// 0: not decoded yet.
        int height = 0;
    };

    Object fail()
    {
        m_valid = false;
        return {};
    }

    /// No byte is asked for twice in a list of which no parts overlap. So all bytes together are
    /// no more than there are, and what is read takes no more time and memory than that.
    QByteArray bytes(quint64 offset, quint64 size)
    {
        const auto length = static_cast<quint64>(m_data.size());
        if (!m_valid || size > m_unread || offset > length || size > length - offset) {
            m_valid = false;
            return {};
        }
        m_unread -= size;
        return m_data.mid(static_cast<qsizetype>(offset), static_cast<qsizetype>(size));
    }

    quint64 number(quint64 offset, quint64 size)
    {
        m_valid = m_valid && size >= 1 && size <= 8;
        return numberIn(bytes(offset, size));
    }

    Object object(quint64 index, int depth)
    {
        if (index >= m_known.size() || depth > PropertyListForms::maximumDepth) {
            return fail();
        }
        Object &known = m_known[static_cast<size_t>(index)];
        if (known.height == 0) {
            known = decoded(number(m_offsets + index * m_offsetSize, m_offsetSize), depth);
        }
        m_valid = m_valid && depth + known.height - 1 <= PropertyListForms::maximumDepth;
        return known;
    }

    Object decoded(quint64 offset, int depth)
    {
        const quint64 marker = number(offset++, 1);
        const Type type = Type(marker >> 4);
        const int low = static_cast<int>(marker & 0xf);
        if (!m_valid) {
            return {};
        }
        if (type == Type::Simple) {
            const bool isKnown = low == 0 || low == 8 || low == 9;
            return isKnown ? Object{{type, QByteArray(1, static_cast<char>(low))}, 1} : fail();
        }
        if (const std::optional<int> size = fixedSize(type, low)) {
            return {{type, bytes(offset, static_cast<quint64>(*size))}, 1};
        }
        if (!hasCount(type)) {
            return fail();
        }
        const quint64 count =
            low == countFollows ? followingCount(offset) : static_cast<quint64>(low);
        if (!m_valid || count > static_cast<quint64>(m_data.size())) {
            return fail();
        }
        if (type >= Type::Array) {
            return container(type, offset, type == Type::Dictionary ? 2 * count : count, depth);
        }
        return {{type, bytes(offset, type == Type::UTF16 ? 2 * count : count)}, 1};
    }

    quint64 followingCount(quint64 &offset)
    {
        const quint64 marker = number(offset++, 1);
        const quint64 size = quint64{1} << (marker & 0x3);
        m_valid = m_valid && marker >= 0x10 && marker <= 0x13;
        offset += size;
        return number(offset - size, size);
    }

    Object container(Type type, quint64 offset, quint64 count, int depth)
    {
        const QByteArray references = bytes(offset, count * m_referenceSize);
        m_valid = m_valid && m_referenceSize >= 1 && m_referenceSize <= 8;
        // A dictionary has all its keys first.
        const quint64 pairs = type == Type::Dictionary ? count / 2 : 0;
        QList<PropertyList> items;
        int height = 1;
        for (quint64 i = 0; i < count && m_valid; ++i) {
            const quint64 place = pairs == 0 ? i : i / 2 + (i % 2) * pairs;
            const auto reference = QByteArrayView(references)
                                       .sliced(static_cast<qsizetype>(place * m_referenceSize),
                                               static_cast<qsizetype>(m_referenceSize));
            const Object item = object(numberIn(reference), depth + 1);
            const bool isKey = pairs != 0 && i % 2 == 0;
            m_valid = m_valid && (!isKey || item.value.isText());
            items.append(item.value);
            height = std::max(height, item.height + 1);
        }
        return {{type, {}, items}, height};
    }

    const QByteArray &m_data;
    quint64 m_unread;
    bool m_valid = true;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_offsets = 0;
    std::vector<Object> m_known;
};

QByteArray marked(Type type, int low)
{
    return QByteArray(1, static_cast<char>(static_cast<int>(type) << 4 | low));
}

/// What a value of so many bytes, characters, items or pairs begins with.
QByteArray beginning(Type type, qsizetype count)
{
    const int size = bytesFor(static_cast<quint64>(count));
    if (!hasCount(type)) {
        return marked(type,
                      type == Type::UID ? static_cast<int>(count) - 1
                                        : std::countr_zero(static_cast<quint64>(count)));
    }
    return count < countFollows ? marked(type, static_cast<int>(count))
                                : marked(type, countFollows) + beginning(Type::Integer, size)
            + bigEndian(static_cast<quint64>(count), size);
}

class Writer {
public:
    QByteArray data(const PropertyList &list)
    {
        add(list);
        const int referenceSize = bytesFor(m_objects.size() - 1);
        QByteArray data = header;
        QList<qsizetype> offsets;
        for (const Object &object : m_objects) {
            offsets.append(data.size());
            data += object.beginning;
            for (const quint64 reference : object.references) {
                data += bigEndian(reference, referenceSize);
            }
        }
        const auto table = static_cast<quint64>(data.size());
        const int offsetSize = bytesFor(table);
        for (const qsizetype offset : offsets) {
            data += bigEndian(static_cast<quint64>(offset), offsetSize);
        }
        return data + QByteArray(6, '\0') + static_cast<char>(offsetSize)
            + static_cast<char>(referenceSize) + bigEndian(m_objects.size(), 8) + bigEndian(0, 8)
            + bigEndian(table, 8);
    }

private:
    struct Object {
        QByteArray beginning;
        QList<quint64> references;
    };

    /// Equal plain values are one object, and so are containers that share their items.
    quint64 add(const PropertyList &value)
    {
        const void *items = value.items().isEmpty() ? nullptr : value.items().constData();
        const QByteArray identity = marked(value.type(), 0)
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
        return {beginning(value.type(), value.type() == Type::UTF16 ? size / 2 : size)
                    + value.content(),
                {}};
    }

    Object container(const PropertyList &value)
    {
        const QList<PropertyList> &items = value.items();
        const qsizetype step = value.isDictionary() ? 2 : 1;
        Object result{beginning(value.type(), items.size() / step), {}};
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

bool PropertyListForms::isBinary(const QByteArray &data)
{
    return data.startsWith(header);
}

std::optional<PropertyList> PropertyListForms::readBinary(const QByteArray &data)
{
    return Reader(data).list();
}

QByteArray PropertyListForms::writeBinary(const PropertyList &list)
{
    return Writer().data(list);
}
