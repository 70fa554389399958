// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/PropertyList.h"

#include "platform/foundation/coding/BigEndian.h"
#include "platform/foundation/coding/PropertyListFormats.h"
#include "platform/foundation/coding/UTF8Reading.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

namespace {

constexpr char falseContent = 0x08;
constexpr char trueContent = 0x09;

/// The fewest of 1, 2, 4 and 8 bytes; 8 for a negative number.
QByteArray integerContent(qint64 value)
{
    return bigEndian(static_cast<quint64>(value), bytesNeededFor(static_cast<quint64>(value)));
}

QByteArray realContent(double value)
{
    return bigEndian(std::bit_cast<quint64>(value), sizeof value);
}

double realIn(const QByteArray &content)
{
    const quint64 bits = numberFromBigEndian(content);
    if (content.size() == sizeof(float)) {
        return static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits)));
    }
    return std::bit_cast<double>(bits);
}

QByteArray utf16Content(const QString &text)
{
    QByteArray content(text.size() * 2, Qt::Uninitialized);
    qToBigEndian<char16_t>(text.utf16(), text.size(), content.data());
    return content;
}

QString utf16In(const QByteArray &content)
{
    QString text(content.size() / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(content.constData(), text.size(), text.data());
    return text;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace

std::optional<PropertyList> PropertyList::fromData(const QByteArray &data)
{
    if (data.size() > maximumLength) {
        return std::nullopt;
    }
    return PropertyListFormats::isBinary(data) ? PropertyListFormats::readBinary(data)
                                               : PropertyListFormats::readXML(data);
}

QByteArray PropertyList::toData() const
{
    return PropertyListFormats::writeBinary(*this);
}

PropertyList::PropertyList(Type type, QByteArray content, QList<PropertyList> items)
    : m_type(type), m_content(std::move(content)), m_items(std::move(items))
{
}

PropertyList::PropertyList(bool value)
    : PropertyList(Type::Simple, QByteArray(1, value ? trueContent : falseContent))
{
}

PropertyList::PropertyList(qint64 value) : PropertyList(Type::Integer, integerContent(value)) {}

PropertyList::PropertyList(double value) : PropertyList(Type::Real, realContent(value)) {}

PropertyList::PropertyList(NSDate value)
    : PropertyList(Type::Date, realContent(value.timeIntervalSinceReferenceDate))
{
}

PropertyList::PropertyList(const QString &value)
    : PropertyList(isAscii(value) ? Type::ASCII : Type::UTF16,
                   isAscii(value) ? value.toLatin1() : utf16Content(value))
{
}

PropertyList PropertyList::reference(quint64 uid)
{
    return {Type::UID, bigEndian(uid, bytesNeededFor(uid))};
}

PropertyList PropertyList::item(const QString &key) const
{
    for (qsizetype i = 0; isDictionary() && i < m_items.size(); i += 2) {
        if (m_items[i].string() == key) {
            return m_items[i + 1];
        }
    }
    return {};
}

QMap<QString, PropertyList> PropertyList::itemsByKey() const
{
    QMap<QString, PropertyList> result;
    // Backwards, so that the first of several values replaces the others.
    for (qsizetype i = isDictionary() ? m_items.size() : 0; i > 0; i -= 2) {
        result.insert(m_items[i - 2].string().value_or(QString()), m_items[i - 1]);
    }
    return result;
}

QList<PropertyList> PropertyList::elements() const
{
    return m_type == Type::Array ? m_items : QList<PropertyList>();
}

std::optional<bool> PropertyList::boolean() const
{
    const bool isBoolean =
        m_type == Type::Simple && (m_content[0] == falseContent || m_content[0] == trueContent);
    return isBoolean ? std::optional(m_content[0] == trueContent) : std::nullopt;
}

std::optional<qint64> PropertyList::integer() const
{
    return m_type == Type::Integer
        ? std::optional(static_cast<qint64>(numberFromBigEndian(m_content)))
        : std::nullopt;
}

std::optional<double> PropertyList::real() const
{
    return m_type == Type::Real ? std::optional(realIn(m_content)) : std::nullopt;
}

std::optional<QString> PropertyList::string() const
{
    if (!isText()) {
        return std::nullopt;
    }
    // Some writers put UTF-8 where the format has ASCII.
    return m_type == Type::UTF16 ? utf16In(m_content) : textFromUTF8(m_content);
}

std::optional<QByteArray> PropertyList::data() const
{
    return m_type == Type::Data ? std::optional(m_content) : std::nullopt;
}

std::optional<NSDate> PropertyList::date() const
{
    return m_type == Type::Date ? std::optional(NSDate{realIn(m_content)}) : std::nullopt;
}

std::optional<quint64> PropertyList::uid() const
{
    if (isDictionary() && m_items.size() == 2) {
        const std::optional<qint64> number = item(QStringLiteral("CF$UID")).integer();
        return number ? std::optional(static_cast<quint64>(*number)) : std::nullopt;
    }
    return m_type == Type::UID ? std::optional(numberFromBigEndian(m_content)) : std::nullopt;
}

void PropertyList::insert(const QString &key, const PropertyList &item)
{
    qsizetype place = 0;
    while (place < m_items.size() && m_items[place].string() != key) {
        place += 2;
    }
    remove(key);
    m_items.insert(place, item);
    m_items.insert(place, PropertyList(key));
}

void PropertyList::remove(const QString &key)
{
    QList<PropertyList> kept;
    for (qsizetype i = 0; i < m_items.size(); i += 2) {
        if (m_items[i].string() != key) {
            kept << m_items[i] << m_items[i + 1];
        }
    }
    m_items = kept;
}
