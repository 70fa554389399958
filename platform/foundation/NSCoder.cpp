// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSCoder.h"

#include "platform/foundation/NSNumberReading.h"

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
    encodeValue(qint64(number), key);
}

void NSCoder::encodeBool(bool value, const QString &key)
{
    encodeValue(value, key);
}

void NSCoder::encodeValue(const Value &value, const QString &key)
{
    m_values.insert(key, value);
}

bool NSCoder::containsValueForKey(const QString &key) const
{
    return m_values.contains(key);
}

std::optional<QString> NSCoder::decodeStringForKey(const QString &key) const
{
    const Value value = m_values.value(key);
    if (const auto *text = std::get_if<QString>(&value)) {
        return *text;
    }
    if (const auto *number = std::get_if<qint64>(&value)) {
        return QString::number(*number);
    }
    if (const auto *number = std::get_if<double>(&value)) {
        return textValue(*number);
    }
    return std::nullopt;
}

int NSCoder::decodeIntForKey(const QString &key) const
{
    const Value value = m_values.value(key);
    if (const auto *text = std::get_if<QString>(&value)) {
        return intValue(*text);
    }
    if (const auto *number = std::get_if<qint64>(&value)) {
        return intValue(double(*number));
    }
    if (const auto *number = std::get_if<double>(&value)) {
        return intValue(*number);
    }
    return decodeBoolForKey(key) ? 1 : 0;
}

std::optional<NSDate> NSCoder::decodeDateForKey(const QString &key) const
{
    const Value value = m_values.value(key);
    const auto *date = std::get_if<NSDate>(&value);
    return date ? std::optional(*date) : std::nullopt;
}

bool NSCoder::decodeBoolForKey(const QString &key) const
{
    const Value value = m_values.value(key);
    if (const auto *number = std::get_if<qint64>(&value)) {
        return *number != 0;
    }
    if (const auto *number = std::get_if<double>(&value)) {
        return *number != 0;
    }
    const auto *boolean = std::get_if<bool>(&value);
    return boolean && *boolean;
}
