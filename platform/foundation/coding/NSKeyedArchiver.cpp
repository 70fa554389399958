// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/coding/NSKeyedArchiver.h"

#include "platform/foundation/coding/PropertyList.h"

#include <algorithm>
#include <deque>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString nullText = u"$null"_s;

/// Collects the $objects of one archive; they refer to each other by index.
class ObjectList {
public:
    ObjectList() { add(PropertyList(nullText)); }

    quint64 addRoot(const NSCoder &coder, const QString &className)
    {
        const quint64 root = add(PropertyList::dictionary());
        for (auto value = coder.values().begin(); value != coder.values().end(); ++value) {
            const auto *boolean = std::get_if<bool>(&*value);
            m_objects[root].insert(value.key(),
                                   boolean ? PropertyList(*boolean)
                                           : PropertyList::reference(referenceTo(*value)));
        }
        setClass(root, className);
        return root;
    }

    [[nodiscard]] PropertyList list() const
    {
        return {PropertyList::Type::Array, {}, {m_objects.begin(), m_objects.end()}};
    }

private:
    quint64 add(const PropertyList &object)
    {
        m_objects.push_back(object);
        return m_objects.size() - 1;
    }

    /// Equal values share one object.
    quint64 referenceTo(const NSCoder::Value &value)
    {
        const auto known = std::find_if(m_known.begin(), m_known.end(),
                                        [&](const auto &entry) { return entry.first == value; });
        if (known != m_known.end()) {
            return known->second;
        }
        const quint64 index = std::visit([this](const auto &v) { return addValue(v); }, value);
        m_known.emplace_back(value, index);
        return index;
    }

    quint64 addValue(std::monostate) { return 0; }
    quint64 addValue(bool value) { return add(PropertyList(value)); }
    quint64 addValue(qint64 value) { return add(PropertyList(value)); }
    quint64 addValue(double value) { return add(PropertyList(value)); }

    quint64 addValue(const QString &value)
    {
        if (value != nullText) {
            return add(PropertyList(value));
        }
        // A plain text "$null" is nil.
        const quint64 index = add(PropertyList::dictionary());
        m_objects[index].insert(u"NS.string"_s, PropertyList(value));
        setClass(index, u"NSString"_s);
        return index;
    }

    quint64 addValue(const NSDate &value)
    {
        const quint64 index = add(PropertyList::dictionary());
        m_objects[index].insert(u"NS.time"_s, PropertyList(value.timeIntervalSinceReferenceDate));
        setClass(index, u"NSDate"_s);
        return index;
    }

    void setClass(quint64 index, const QString &className)
    {
        auto known = std::find_if(m_classes.begin(), m_classes.end(),
                                  [&](const auto &entry) { return entry.first == className; });
        if (known == m_classes.end()) {
            PropertyList classes = PropertyList::array();
            classes.append(PropertyList(className));
            classes.append(PropertyList(u"NSObject"_s));
            PropertyList description = PropertyList::dictionary();
            description.insert(u"$classname"_s, PropertyList(className));
            description.insert(u"$classes"_s, classes);
            known = m_classes.emplace(known, className, add(description));
        }
        m_objects[index].insert(u"$class"_s, PropertyList::reference(known->second));
    }

    /// A deque, because added objects must not move the others.
    std::deque<PropertyList> m_objects;
    std::vector<std::pair<NSCoder::Value, quint64>> m_known;
    std::vector<std::pair<QString, quint64>> m_classes;
};

bool isStorable(const NSCoder::Value &value)
{
    const auto *text = std::get_if<QString>(&value);
    return !text || text->isValidUtf16();
}

} // namespace

std::optional<QByteArray> NSKeyedArchiver::archivedDataWithCoder(const NSCoder &coder,
                                                                 const QString &className)
{
    if (!std::all_of(coder.values().begin(), coder.values().end(), isStorable)) {
        return std::nullopt;
    }
    ObjectList objects;
    PropertyList top = PropertyList::dictionary();
    top.insert(u"root"_s, PropertyList::reference(objects.addRoot(coder, className)));

    PropertyList archive = PropertyList::dictionary();
    archive.insert(u"$version"_s, PropertyList(qint64{100000}));
    archive.insert(u"$archiver"_s, PropertyList(u"NSKeyedArchiver"_s));
    archive.insert(u"$top"_s, top);
    archive.insert(u"$objects"_s, objects.list());
    return archive.toData();
}
