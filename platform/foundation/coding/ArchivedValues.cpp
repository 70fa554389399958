// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/ArchivedValues.h"

#include "platform/foundation/coding/UTF8Reading.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Value = NSCoder::Value;

std::optional<double> asDouble(const PropertyList &node)
{
    const auto number = node.integer();
    return number ? std::optional(static_cast<double>(*number)) : node.real();
}

Value textOf(const PropertyList &object)
{
    if (const auto text = object.item(u"NS.string"_s).string()) {
        return *text;
    }
    const auto bytes = object.item(u"NS.bytes"_s).data();
    return bytes ? Value(textFromUTF8(*bytes)) : Value();
}

Value numberOf(const PropertyList &object)
{
    for (const QString &key : {u"NS.number"_s, u"NS.intval"_s, u"NS.dblval"_s, u"NS.boolval"_s}) {
        const Value value = ArchivedValues::fromPlain(object.item(key));
        if (!std::holds_alternative<std::monostate>(value)) {
            return value;
        }
    }
    return {};
}

Value dateOf(const PropertyList &object)
{
    const auto time = asDouble(object.item(u"NS.time"_s));
    return time ? Value(NSDate{*time}) : Value();
}

/// Classes whose objects are values that a record can hold.
struct ReaderRow {
    QLatin1StringView className;
    Value (*read)(const PropertyList &object);
};
constexpr std::array readerTable{
    ReaderRow{"NSDate"_L1, dateOf},
    ReaderRow{"NSString"_L1, textOf},
    ReaderRow{"NSMutableString"_L1, textOf},
    ReaderRow{"NSNumber"_L1, numberOf},
};

} // namespace

NSCoder::Value ArchivedValues::fromPlain(const PropertyList &node)
{
    if (const auto text = node.string()) {
        return *text == "$null"_L1 ? Value() : Value(*text);
    }
    if (const auto number = node.integer()) {
        return *number;
    }
    if (const auto number = node.real()) {
        return *number;
    }
    if (const auto boolean = node.boolean()) {
        return *boolean;
    }
    const auto date = node.date();
    return date ? Value(*date) : Value();
}

NSCoder::Value ArchivedValues::fromObject(const PropertyList &object,
                                          const std::optional<QString> &className)
{
    const auto *row = std::find_if(readerTable.begin(), readerTable.end(),
                                   [&](const ReaderRow &r) { return className == r.className; });
    return row == readerTable.end() ? fromPlain(object) : row->read(object);
}
