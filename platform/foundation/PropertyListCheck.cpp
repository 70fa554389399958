// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/PropertyListCheck.h"

#include <QXmlStreamReader>

#include <optional>
#include <vector>

namespace {

constexpr qsizetype maximumLength = qsizetype(4) * 1024 * 1024;
constexpr quint64 maximumExpansion = quint64(32) * 1024 * 1024;
/// What one object takes in memory, beside its bytes.
constexpr quint64 objectOverhead = 64;
constexpr int maximumDepth = 64;

bool isBoundedXml(const QByteArray &data)
{
    QXmlStreamReader reader(data);
    int depth = 0;
    while (!reader.atEnd() && depth <= maximumDepth) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += int(token == QXmlStreamReader::StartElement)
            - int(token == QXmlStreamReader::EndElement);
    }
    return !reader.hasError() && depth == 0;
}

/// The object table of a binary property list: a header of 8 bytes, objects, a table of their
/// offsets, and a trailer of 32 bytes.
class ObjectTable {
public:
    explicit ObjectTable(const QByteArray &data) : m_data(data) {}

    [[nodiscard]] bool isBounded()
    {
        constexpr quint64 trailerLength = 32;
        const quint64 trailer = quint64(m_data.size()) - trailerLength;
        if (m_data.size() < qsizetype(8 + trailerLength)) {
            return false;
        }
        m_offsetSize = number(trailer + 6, 1).value_or(0);
        m_referenceSize = number(trailer + 7, 1).value_or(0);
        const quint64 count = number(trailer + 8, 8).value_or(0);
        const quint64 top = number(trailer + 16, 8).value_or(0);
        m_offsets = number(trailer + 24, 8).value_or(0);
        if (count > quint64(m_data.size())) {
            return false;
        }
        m_measures.resize(size_t(count));
        const std::optional<Measure> all = measure(top, 0);
        return all && all->expansion <= maximumExpansion;
    }

private:
    struct Measure {
        quint64 expansion = 0;
        int height = 0;
    };

    [[nodiscard]] std::optional<quint64> number(quint64 offset, quint64 size) const
    {
        const auto length = quint64(m_data.size());
        if (size < 1 || size > 8 || offset > length || size > length - offset) {
            return std::nullopt;
        }
        quint64 value = 0;
        for (quint64 i = 0; i < size; ++i) {
            value = value << 8 | uchar(m_data[qsizetype(offset + i)]);
        }
        return value;
    }

    struct Object {
        quint64 type = 0;
        /// Bytes, characters, items or pairs; 0 for what has a fixed size.
        quint64 count = 0;
        quint64 content = 0;

        [[nodiscard]] bool isContainer() const { return type >= 0xa; }
        [[nodiscard]] bool isDictionary() const { return type == 0xd; }
        [[nodiscard]] bool isText() const { return type == 0x5 || type == 0x6; }
        [[nodiscard]] quint64 characterSize() const { return type == 0x6 ? 2 : 1; }
    };

    [[nodiscard]] std::optional<Object> object(quint64 index) const
    {
        const std::optional<quint64> offset =
            number(m_offsets + index * m_offsetSize, m_offsetSize);
        const std::optional<quint64> marker = offset ? number(*offset, 1) : std::nullopt;
        if (!marker || index >= m_measures.size()) {
            return std::nullopt;
        }
        Object result{*marker >> 4, *marker & 0xf, *offset + 1};
        if (result.type < 0x4 || result.type == 0x8) {
            result.count = 0;
        } else if (result.count == 0xf) {
            const quint64 size = quint64(1) << (number(result.content, 1).value_or(0) & 0x3);
            result.count = number(result.content + 1, size).value_or(maximumExpansion);
            result.content += 1 + size;
        }
        // More items than bytes cannot be, whatever they are.
        return result.count > quint64(m_data.size()) ? std::nullopt : std::optional(result);
    }

    /// Objects are reached from the top only, each is measured once.
    std::optional<Measure> measure(quint64 index, int depth)
    {
        const std::optional<Object> measured = object(index);
        if (!measured || depth > maximumDepth) {
            return std::nullopt;
        }
        Measure &known = m_measures[size_t(index)];
        if (known.height == 0) {
            const std::optional<Measure> fresh = measured->isContainer()
                ? measureItems(*measured, depth)
                : std::optional(Measure{objectOverhead + 2 * measured->count, 1});
            if (!fresh) {
                return std::nullopt;
            }
            known = *fresh;
        }
        return depth + known.height <= maximumDepth ? std::optional(known) : std::nullopt;
    }

    std::optional<Measure> measureItems(const Object &container, int depth)
    {
        Measure sum{objectOverhead, 1};
        const quint64 keys = container.isDictionary() ? container.count : 0;
        for (quint64 i = 0; i < keys + container.count && sum.expansion <= maximumExpansion; ++i) {
            const std::optional<quint64> index =
                number(container.content + i * m_referenceSize, m_referenceSize);
            const std::optional<Measure> item = index ? measure(*index, depth + 1) : std::nullopt;
            if (!item || (i < keys && !isKey(*index))) {
                return std::nullopt;
            }
            sum.expansion += item->expansion;
            sum.height = std::max(sum.height, item->height + 1);
        }
        return sum;
    }

    /// A text without null characters: the parser ends the process over any other key.
    [[nodiscard]] bool isKey(quint64 index) const
    {
        const std::optional<Object> key = object(index);
        if (!key || !key->isText()) {
            return false;
        }
        const quint64 size = key->characterSize();
        for (quint64 i = 0; i < key->count; ++i) {
            if (number(key->content + i * size, size).value_or(0) == 0) {
                return false;
            }
        }
        return true;
    }

    const QByteArray &m_data;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_offsets = 0;
    /// By object; a height of 0 is not measured yet.
    std::vector<Measure> m_measures;
};

} // namespace

bool isBoundedPropertyList(const QByteArray &data)
{
    if (data.size() > maximumLength) {
        return false;
    }
    return data.startsWith("bplist") ? ObjectTable(data).isBounded() : isBoundedXml(data);
}
