// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/NSKeyedUnarchiver.h"

#include "platform/foundation/coding/ArchivedValues.h"
#include "platform/foundation/coding/PropertyList.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Value = NSCoder::Value;

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
                coder.encodeValue(uid ? valueAt(*uid) : ArchivedValues::fromPlain(*item),
                                  item.key());
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
        return ArchivedValues::fromObject(object, classOf(object).item(u"$classname"_s).string());
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
