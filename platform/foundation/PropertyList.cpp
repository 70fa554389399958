// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/PropertyList.h"

#include "platform/foundation/PropertyListCheck.h"
#include "platform/foundation/UTF8Reading.h"

#include <QtEndian>

#include <clocale>
#include <plist/plist.h>

#include <cstdlib>

namespace {

/// Property lists write decimal points, whatever the user's language; the parser asks the locale.
class PlainLocale {
public:
    PlainLocale() : m_previous(uselocale(m_plain)) {}
    ~PlainLocale()
    {
        uselocale(m_previous);
        freelocale(m_plain);
    }
    PlainLocale(const PlainLocale &) = delete;
    PlainLocale &operator=(const PlainLocale &) = delete;

private:
    locale_t m_plain = newlocale(LC_ALL_MASK, "C", nullptr);
    locale_t m_previous;
};

#ifdef WZT_PLIST_2_3
plist_t newInteger(qint64 value)
{
    return plist_new_int(value);
}
void parse(const char *bytes, uint32_t length, plist_t *node)
{
    plist_from_memory(bytes, length, node, nullptr);
}
#else
// These releases read every integer of eight bytes as signed.
plist_t newInteger(qint64 value)
{
    return plist_new_uint(quint64(value));
}
void parse(const char *bytes, uint32_t length, plist_t *node)
{
    plist_from_memory(bytes, length, node);
}
#endif

bool isOfType(plist_t node, plist_type type)
{
    return node && plist_get_node_type(node) == type;
}

/// The value of a node, nil unless it is of `type`.
template <typename Result, typename Raw>
std::optional<Result> valueOf(plist_t node, plist_type type, void (*get)(plist_t, Raw *))
{
    if (!isOfType(node, type)) {
        return std::nullopt;
    }
    Raw value{};
    get(node, &value);
    return Result(value);
}

} // namespace

bool PropertyListNode::isDictionary() const
{
    return isOfType(m_node, PLIST_DICT);
}

bool PropertyListNode::isArray() const
{
    return isOfType(m_node, PLIST_ARRAY);
}

QMap<QString, PropertyListNode> PropertyListNode::items() const
{
    QMap<QString, PropertyListNode> result;
    if (!isDictionary()) {
        return result;
    }
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(m_node, &iterator);
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(m_node, iterator, &key, &value);
        if (!value) {
            break;
        }
        result.insert(textFromUTF8(key), PropertyListNode(value));
        free(key);
    }
    free(iterator);
    return result;
}

QList<PropertyListNode> PropertyListNode::elements() const
{
    QList<PropertyListNode> result;
    if (!isArray()) {
        return result;
    }
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(m_node, &iterator);
    for (;;) {
        plist_t value = nullptr;
        plist_array_next_item(m_node, iterator, &value);
        if (!value) {
            break;
        }
        result.append(PropertyListNode(value));
    }
    free(iterator);
    return result;
}

PropertyListNode PropertyListNode::item(const QString &key) const
{
    return PropertyListNode(isDictionary() ? plist_dict_get_item(m_node, key.toUtf8().constData())
                                           : nullptr);
}

std::optional<bool> PropertyListNode::boolean() const
{
    return valueOf<bool>(m_node, PLIST_BOOLEAN, plist_get_bool_val);
}

std::optional<qint64> PropertyListNode::integer() const
{
    return valueOf<qint64>(m_node, PLIST_UINT, plist_get_uint_val);
}

std::optional<double> PropertyListNode::real() const
{
    return valueOf<double>(m_node, PLIST_REAL, plist_get_real_val);
}

std::optional<QString> PropertyListNode::string() const
{
    uint64_t length = 0;
    const char *text =
        isOfType(m_node, PLIST_STRING) ? plist_get_string_ptr(m_node, &length) : nullptr;
    return text ? std::optional(textFromUTF8({text, qsizetype(length)})) : std::nullopt;
}

std::optional<QByteArray> PropertyListNode::data() const
{
    if (!isOfType(m_node, PLIST_DATA)) {
        return std::nullopt;
    }
    uint64_t length = 0;
    const char *bytes = plist_get_data_ptr(m_node, &length);
    return QByteArray(bytes, qsizetype(length));
}

std::optional<NSDate> PropertyListNode::date() const
{
    if (!isOfType(m_node, PLIST_DATE)) {
        return std::nullopt;
    }
    // The library's getter has 32 bits for the seconds and loses the sign of a fraction. The binary
    // form of a date alone is a header of 8 bytes, a marker and the seconds as they are.
    constexpr qsizetype place = 9;
    const QByteArray binary = toData();
    return NSDate{qFromBigEndian<double>(binary.constData() + place)};
}

std::optional<quint64> PropertyListNode::uid() const
{
    if (isDictionary() && plist_dict_get_size(m_node) == 1) {
        const std::optional<qint64> number = item(QStringLiteral("CF$UID")).integer();
        return number ? std::optional(quint64(*number)) : std::nullopt;
    }
    return valueOf<quint64>(m_node, PLIST_UID, plist_get_uid_val);
}

std::optional<PropertyList> PropertyList::fromData(const QByteArray &data)
{
    if (!isBoundedPropertyList(data)) {
        return std::nullopt;
    }
    const PlainLocale locale;
    plist_t node = nullptr;
    parse(data.constData(), uint32_t(data.size()), &node);
    return node ? std::optional(PropertyList(Adopt(), node)) : std::nullopt;
}

PropertyList PropertyList::dictionary()
{
    return {Adopt(), plist_new_dict()};
}

PropertyList PropertyList::array()
{
    return {Adopt(), plist_new_array()};
}

PropertyList PropertyList::uid(quint64 uid)
{
    return {Adopt(), plist_new_uid(uid)};
}

PropertyList::PropertyList(bool value) : PropertyList(Adopt(), plist_new_bool(value ? 1 : 0)) {}

PropertyList::PropertyList(qint64 value) : PropertyList(Adopt(), newInteger(value)) {}

PropertyList::PropertyList(double value) : PropertyList(Adopt(), plist_new_real(value)) {}

PropertyList::PropertyList(const QByteArray &value)
    : PropertyList(Adopt(), plist_new_data(value.constData(), uint64_t(value.size())))
{
}

PropertyList::PropertyList(const QString &value)
    : PropertyList(Adopt(), plist_new_string(value.toUtf8().constData()))
{
}

QByteArray PropertyListNode::toData() const
{
    char *bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(m_node, &bytes, &length);
    const QByteArray result(bytes, qsizetype(length));
    free(bytes);
    return result;
}

void PropertyList::insert(const QString &key, PropertyList item)
{
    plist_dict_set_item(m_node, key.toUtf8().constData(), item.release());
}

void PropertyList::remove(const QString &key)
{
    plist_dict_remove_item(m_node, key.toUtf8().constData());
}

void PropertyList::append(PropertyList item)
{
    plist_array_append_item(m_node, item.release());
}

void *PropertyList::release()
{
    return m_owned.release();
}

void PropertyList::Freer::operator()(void *node) const
{
    plist_free(node);
}
