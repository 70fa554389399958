// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/NSKeyedUnarchiver.h"

#include "platform/foundation/coding/PropertyList.h"
#include "platform/foundation/coding/UTF8Reading.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Value = NSCoder::Value;

/// The value of a plain text, number, boolean or date; nil for any other node.
Value plainValue(const PropertyList &node)
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
        const Value value = plainValue(object.item(key));
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

class Archive {
public:
    explicit Archive(const PropertyList &list)
        : m_list(list), m_objects(list.item(u"$objects"_s).elements())
    {
    }

    [[nodiscard]] bool isValid() const
    {
        return m_list.item(u"$version"_s).integer() == 100000
            && m_list.item(u"$archiver"_s).string();
    }

    [[nodiscard]] std::optional<NSCoder> root(const QString &className)
    {
        const PropertyList object = referred(m_list.item(u"$top"_s).item(u"root"_s).uid());
        if (!object.isDictionary() || !isOfClass(object, className)) {
            return std::nullopt;
        }
        return values(object);
    }

private:
    /// The object with that UID, or nothing.
    [[nodiscard]] PropertyList referred(std::optional<quint64> uid) const
    {
        const bool exists = uid && *uid < static_cast<quint64>(m_objects.size());
        return exists ? m_objects[static_cast<qsizetype>(*uid)] : PropertyList();
    }

    /// The description of an object's class, or nothing.
    [[nodiscard]] PropertyList classOf(const PropertyList &object) const
    {
        return referred(object.item(u"$class"_s).uid());
    }

    [[nodiscard]] bool isOfClass(const PropertyList &object, const QString &className) const
    {
        const PropertyList description = classOf(object);
        if (description.item(u"$classname"_s).string() == className) {
            return true;
        }
        const QList<PropertyList> classes = description.item(u"$classes"_s).elements();
        return std::any_of(classes.begin(), classes.end(),
                           [&](const PropertyList &name) { return name.string() == className; });
    }

    [[nodiscard]] std::optional<NSCoder> values(const PropertyList &object)
    {
        NSCoder coder;
        const QMap<QString, PropertyList> items = object.itemsByKey();
        for (auto item = items.begin(); item != items.end(); ++item) {
            const auto uid = item->uid();
            if (uid && !referred(uid).isPresent()) {
                return std::nullopt;
            }
            if (item.key() != "$class"_L1) {
                coder.encodeValue(uid ? valueAt(*uid) : plainValue(*item), item.key());
            }
        }
        return coder;
    }

    /// Decodes each object only once.
    [[nodiscard]] Value valueAt(quint64 uid)
    {
        const auto known = m_values.constFind(uid);
        return known != m_values.constEnd()
            ? *known
            : *m_values.insert(uid, valueOf(m_objects[static_cast<qsizetype>(uid)]));
    }

    /// Follows only references to classes, so cycles of objects are harmless.
    [[nodiscard]] Value valueOf(const PropertyList &object) const
    {
        const auto className = classOf(object).item(u"$classname"_s).string();
        const auto *row =
            std::find_if(readerTable.begin(), readerTable.end(),
                         [&](const ReaderRow &r) { return className == r.className; });
        return row == readerTable.end() ? plainValue(object) : row->read(object);
    }

    const PropertyList &m_list;
    QList<PropertyList> m_objects;
    /// Decoded so far, by UID.
    QHash<quint64, Value> m_values;
};

} // namespace

std::optional<NSCoder> NSKeyedUnarchiver::unarchiveObjectWithData(const QByteArray &data,
                                                                  const QString &className)
{
    const std::optional<PropertyList> list = PropertyList::fromData(data);
    const bool valid = list && Archive(*list).isValid();
    return valid ? Archive(*list).root(className) : std::nullopt;
}
