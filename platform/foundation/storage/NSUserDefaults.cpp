// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/storage/NSUserDefaults.h"

#include "platform/foundation/coding/PropertyList.h"
#include "platform/foundation/storage/DefaultsFile.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// The values of the file, none for an absent file; nil for a damaged one.
std::optional<PropertyList> valuesIn(DefaultsFile::State state, const QByteArray &content)
{
    if (state == DefaultsFile::State::Absent) {
        return PropertyList::dictionary();
    }
    std::optional<PropertyList> values;
    if (state == DefaultsFile::State::Read) {
        values = PropertyList::fromData(content);
    }
    return values && values->isDictionary() ? std::move(values) : std::nullopt;
}

/// The values for a change. Moves a damaged file aside. Nil if the file can be neither read nor
/// moved.
std::optional<PropertyList> readForChange(const DefaultsFile &file, const DefaultsFile::Lock &lock)
{
    QByteArray content;
    const DefaultsFile::State state = file.read(&content);
    if (!lock.isHeld() || state == DefaultsFile::State::Unavailable) {
        return std::nullopt;
    }
    std::optional<PropertyList> values = valuesIn(state, content);
    if (!values && file.moveAside(lock)) {
        return PropertyList::dictionary();
    }
    return values;
}

/// Decodes the data again before it replaces the file.
bool write(const DefaultsFile &file, const DefaultsFile::Lock &lock, const PropertyList &values,
           const QString &key)
{
    const QByteArray content = values.toData();
    const std::optional<PropertyList> decoded = PropertyList::fromData(content);
    return decoded && decoded->item(key).data() == values.item(key).data()
        && file.write(lock, content);
}

} // namespace

NSUserDefaults::NSUserDefaults(const QString &applicationId, const QString &folder)
    : m_file((folder.isEmpty()
                  ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                  : folder)
                 + u'/' + applicationId,
             applicationId + ".plist"_L1, PropertyList::maximumLength)
{
}

std::optional<QByteArray> NSUserDefaults::dataForKey(const QString &key) const
{
    QByteArray content;
    const DefaultsFile::State state = m_file.read(&content);
    if (const std::optional<PropertyList> values = valuesIn(state, content)) {
        return values->item(key).data();
    }
    // The file is damaged, unless another process has just replaced it.
    const DefaultsFile::Lock lock(m_file);
    const std::optional<PropertyList> values = readForChange(m_file, lock);
    return values ? values->item(key).data() : std::nullopt;
}

bool NSUserDefaults::setObject(const std::optional<QByteArray> &data, const QString &key)
{
    if (!data) {
        return removeObjectForKey(key);
    }
    const DefaultsFile::Lock lock(m_file);
    std::optional<PropertyList> values = readForChange(m_file, lock);
    if (!values) {
        return false;
    }
    values->insert(key, PropertyList(*data));
    return write(m_file, lock, *values, key);
}

bool NSUserDefaults::removeObjectForKey(const QString &key)
{
    QByteArray content;
    const DefaultsFile::State state = m_file.read(&content);
    const std::optional<PropertyList> values = valuesIn(state, content);
    const bool isAbsent = values && !values->item(key).isPresent();
    if (isAbsent) {
        m_file.removeTemporary();
    }
    const bool isRemoved = isAbsent || writeWithout(key) || m_file.remove();
    return m_file.removeMovedAside() && isRemoved;
}

bool NSUserDefaults::writeWithout(const QString &key)
{
    const DefaultsFile::Lock lock(m_file);
    std::optional<PropertyList> values = readForChange(m_file, lock);
    if (!values) {
        return false;
    }
    values->remove(key);
    return values->items().isEmpty() ? m_file.remove() : write(m_file, lock, *values, key);
}
