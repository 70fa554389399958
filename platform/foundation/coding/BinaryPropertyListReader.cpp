// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/BigEndian.h"
#include "platform/foundation/coding/BinaryLayout.h"
#include "platform/foundation/coding/PropertyListFormats.h"

#include <vector>

namespace {

using namespace BinaryLayout;
using Type = PropertyList::Type;

/// The number of bytes after a marker that contains it; nil for a marker that the format does not
/// define.
std::optional<int> fixedSize(Type type, int low)
{
    const bool isNumber = (type == Type::Integer && low <= 4)
        || (type == Type::Real && (low == 2 || low == 3)) || (type == Type::Date && low == 3);
    const bool isUID = type == Type::UID && low < 8;
    return isNumber ? std::optional(1 << low) : isUID ? std::optional(low + 1) : std::nullopt;
}

/// Decodes each object that can be reached from the top, and each only once.
class BinaryReader {
public:
    explicit BinaryReader(const QByteArray &data)
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

    /// In a valid list no two parts overlap, so no byte is read twice. A list that needs more bytes
    /// than it has is refused; this bounds the time and the memory of reading.
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
        return numberFromBigEndian(bytes(offset, size));
    }

    Object object(quint64 index, int depth)
    {
        if (index >= m_known.size() || depth > PropertyListFormats::maximumDepth) {
            return fail();
        }
        Object &known = m_known[static_cast<size_t>(index)];
        if (known.height == 0) {
            known = decoded(number(m_offsets + index * m_offsetSize, m_offsetSize), depth);
        }
        m_valid = m_valid && depth + known.height - 1 <= PropertyListFormats::maximumDepth;
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
        return hasCount(type) ? counted(type, low, offset, depth) : fail();
    }

    Object counted(Type type, int low, quint64 offset, int depth)
    {
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
        // In a dictionary all keys precede all values.
        const quint64 pairs = type == Type::Dictionary ? count / 2 : 0;
        QList<PropertyList> items;
        int height = 1;
        for (quint64 i = 0; i < count && m_valid; ++i) {
            const quint64 place = pairs == 0 ? i : i / 2 + (i % 2) * pairs;
            const auto reference = QByteArrayView(references)
                                       .sliced(static_cast<qsizetype>(place * m_referenceSize),
                                               static_cast<qsizetype>(m_referenceSize));
            const Object item = object(numberFromBigEndian(reference), depth + 1);
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

} // namespace

bool PropertyListFormats::isBinary(const QByteArray &data)
{
    return data.startsWith(signature);
}

std::optional<PropertyList> PropertyListFormats::readBinary(const QByteArray &data)
{
    return BinaryReader(data).list();
}
