// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/BigEndian.h"
#include "platform/foundation/coding/PropertyListFormats.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <charconv>

using namespace Qt::StringLiterals;

namespace {

using Parsed = std::optional<PropertyList>;

/// The number that makes up the whole of `text`, in C notation for every locale.
template <typename Number, typename... Format>
std::optional<Number> numberOf(QByteArrayView text, Format... format)
{
    Number number{};
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, format...);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

QByteArray withoutPlus(const QString &text)
{
    const QByteArray trimmed = text.toUtf8().trimmed();
    return trimmed.startsWith('+') ? trimmed.sliced(1) : trimmed;
}

Parsed integerOf(const QString &text)
{
    QByteArray digits = withoutPlus(text);
    if (const auto number = numberOf<qint64>(digits)) {
        return PropertyList(*number);
    }
    const bool hexadecimal = digits.startsWith("0x") || digits.startsWith("0X");
    const auto number =
        hexadecimal ? numberOf<quint64>(digits.sliced(2), 16) : numberOf<quint64>(digits, 10);
    if (!number || *number >> 63 == 0) {
        return number ? Parsed(PropertyList(static_cast<qint64>(*number))) : std::nullopt;
    }
    // In eight bytes it would be a negative number.
    return PropertyList(PropertyList::Type::Integer, bigEndian(0, 8) + bigEndian(*number, 8));
}

Parsed realOf(const QString &text)
{
    const auto number = numberOf<double>(withoutPlus(text));
    return number ? Parsed(PropertyList(*number)) : std::nullopt;
}

Parsed textOf(const QString &text)
{
    return PropertyList(text);
}

Parsed dataOf(const QString &text)
{
    auto decoded = QByteArray::fromBase64Encoding(text.simplified().remove(u' ').toLatin1(),
                                                  QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? Parsed(PropertyList(*decoded)) : std::nullopt;
}

Parsed dateOf(const QString &text)
{
    constexpr qint64 referenceDate = 978307200; // 2001-01-01 UTC
    const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    return date.isValid() && date.timeSpec() == Qt::UTC
        ? Parsed(PropertyList(NSDate{static_cast<double>(date.toSecsSinceEpoch() - referenceDate)}))
        : std::nullopt;
}

struct XMLReaderRow {
    QLatin1StringView element;
    Parsed (*read)(const QString &text);
};
constexpr XMLReaderRow readerTable[] = {
    {"string"_L1, textOf},
    {"integer"_L1, integerOf},
    {"real"_L1, realOf},
    {"data"_L1, dataOf},
    {"date"_L1, dateOf},
    {"true"_L1, [](const QString &) { return Parsed(PropertyList(true)); }},
    {"false"_L1, [](const QString &) { return Parsed(PropertyList(false)); }},
};

class XMLReader {
public:
    explicit XMLReader(const QByteArray &data) : m_xml(data) {}

    Parsed list()
    {
        while (m_xml.readNext() != QXmlStreamReader::StartElement) {
            // Declared entities could expand a short list to a huge one.
            if (m_xml.atEnd() || (m_xml.isDTD() && m_xml.text().contains(u'['))) {
                return std::nullopt;
            }
        }
        const bool isWrapped = m_xml.name() == "plist"_L1;
        const Parsed list = isWrapped ? onlyItem() : value(1);
        while (list && !m_xml.atEnd()) {
            m_xml.readNext();
        }
        return m_xml.hasError() ? std::nullopt : list;
    }

private:
    Parsed onlyItem()
    {
        const Parsed item = m_xml.readNextStartElement() ? value(1) : std::nullopt;
        return item && !m_xml.readNextStartElement() ? item : std::nullopt;
    }

    /// The value of the element whose start tag has been read.
    Parsed value(int depth)
    {
        if (depth > PropertyListFormats::maximumDepth) {
            return std::nullopt;
        }
        if (m_xml.name() == "dict"_L1) {
            return container(PropertyList::Type::Dictionary, depth);
        }
        if (m_xml.name() == "array"_L1) {
            return container(PropertyList::Type::Array, depth);
        }
        for (const XMLReaderRow &row : readerTable) {
            if (m_xml.name() == row.element) {
                const QString text = m_xml.readElementText();
                return m_xml.hasError() ? std::nullopt : row.read(text);
            }
        }
        return std::nullopt;
    }

    Parsed container(PropertyList::Type type, int depth)
    {
        QList<PropertyList> items;
        while (m_xml.readNextStartElement()) {
            const bool isKey = type == PropertyList::Type::Dictionary && items.size() % 2 == 0;
            if (isKey != (m_xml.name() == "key"_L1)) {
                return std::nullopt;
            }
            const Parsed item = isKey ? textOf(m_xml.readElementText()) : value(depth + 1);
            if (!item) {
                return std::nullopt;
            }
            items.append(*item);
        }
        const bool isWhole = type == PropertyList::Type::Array || items.size() % 2 == 0;
        return isWhole && !m_xml.hasError() ? Parsed({type, {}, items}) : std::nullopt;
    }

    QXmlStreamReader m_xml;
};

} // namespace

std::optional<PropertyList> PropertyListFormats::readXML(const QByteArray &data)
{
    return XMLReader(data).list();
}
