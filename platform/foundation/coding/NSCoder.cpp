// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/NSCoder.h"

#include "platform/foundation/base/NumberReading.h"

namespace {

/// The value under `key`, null unless it is a T.
template <typename T>
const T *find(const QMap<QString, NSCoder::Value> &values, const QString &key)
{
    const auto place = values.constFind(key);
    return place == values.constEnd() ? nullptr : std::get_if<T>(&*place);
}

} // namespace

void NSCoder::encodeObject(const QString &text, const QString &key)
{
    encodeValue(text, key);
}

void NSCoder::encodeObject(const std::optional<QString> &text, const QString &key)
{
    encodeValue(text ? Value(*text) : Value(), key);
}

void NSCoder::encodeObject(const std::optional<NSDate> &date, const QString &key)
{
    encodeValue(date ? Value(*date) : Value(), key);
}

void NSCoder::encodeObject(int number, const QString &key)
{
    encodeValue(static_cast<qint64>(number), key);
}

void NSCoder::encodeBool(bool value, const QString &key)
{
    encodeValue(value, key);
}

void NSCoder::encodeValue(const Value &value, const QString &key)
{
    m_values.insert(key, value);
}

std::optional<QString> NSCoder::decodeStringForKey(const QString &key) const
{
    if (const auto *text = find<QString>(m_values, key)) {
        return *text;
    }
    if (const auto *number = find<qint64>(m_values, key)) {
        return QString::number(*number);
    }
    if (const auto *number = find<double>(m_values, key)) {
        return textValue(*number);
    }
    return std::nullopt;
}

int NSCoder::decodeIntForKey(const QString &key) const
{
    if (const auto *text = find<QString>(m_values, key)) {
        return intValue(*text);
    }
    if (const auto *number = find<qint64>(m_values, key)) {
        return intValue(static_cast<double>(*number));
    }
    if (const auto *number = find<double>(m_values, key)) {
        return intValue(*number);
    }
    return decodeBoolForKey(key) ? 1 : 0;
}

std::optional<NSDate> NSCoder::decodeDateForKey(const QString &key) const
{
    const auto *date = find<NSDate>(m_values, key);
    return date ? std::optional(*date) : std::nullopt;
}

bool NSCoder::decodeBoolForKey(const QString &key) const
{
    if (const auto *number = find<qint64>(m_values, key)) {
        return *number != 0;
    }
    if (const auto *number = find<double>(m_values, key)) {
        return *number != 0;
    }
    const auto *boolean = find<bool>(m_values, key);
    return boolean && *boolean;
}
