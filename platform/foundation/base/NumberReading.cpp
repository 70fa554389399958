// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/base/NumberReading.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr qint64 smallest = std::numeric_limits<int>::min();
constexpr qint64 largest = std::numeric_limits<int>::max();

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isTrue(const QString &text)
{
    const auto skipped = [](QChar c) { return c.isSpace() || c == u'+' || c == u'-' || c == u'0'; };
    const auto first = std::find_if_not(text.begin(), text.end(), skipped);
    return first != text.end() && (isDigit(*first) || QStringView(u"YyTt").contains(*first));
}

} // namespace

int intValue(const QString &text)
{
    auto c = std::find_if_not(text.begin(), text.end(), [](QChar ch) { return ch.isSpace(); });
    const bool negative = c != text.end() && *c == u'-';
    if (c != text.end() && (*c == u'-' || *c == u'+')) {
        ++c;
    }
    qint64 number = 0;
    for (; c != text.end() && isDigit(*c); ++c) {
        // Stops one beyond the range, so that it cannot overflow.
        number = std::min(number * 10 + (c->unicode() - u'0'), largest + 1);
    }
    return static_cast<int>(std::clamp(negative ? -number : number, smallest, largest));
}

int intValue(double number)
{
    return std::isnan(number) ? 0
                              : static_cast<int>(std::clamp(number, static_cast<double>(smallest),
                                                            static_cast<double>(largest)));
}

int intValue(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Double:
        return intValue(value.toDouble());
    case QJsonValue::String:
        return intValue(value.toString());
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::Null:
    case QJsonValue::Array:
    case QJsonValue::Object:
    case QJsonValue::Undefined:
        break;
    }
    return 0;
}

bool boolValue(const QJsonValue &value)
{
    if (value.isString()) {
        return isTrue(value.toString());
    }
    return value.toBool() || value.toDouble() != 0;
}

std::optional<QString> textValue(const QJsonValue &value)
{
    if (value.isString()) {
        return value.toString();
    }
    if (!value.isDouble()) {
        return std::nullopt;
    }
    // Qt keeps a whole number exactly to 64 bits; a double does not.
    const bool whole = value.toInteger(0) == value.toInteger(1);
    return whole ? QString::number(value.toInteger()) : textValue(value.toDouble());
}

QString textValue(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}
