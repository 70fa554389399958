// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/storage/DefaultsFile.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Persistent values: one binary property list for each application, which only its user may read,
/// at `<folder>/<application id>/<application id>.plist`.
///
/// Every read reads the file. Every write replaces it, durably, and keeps the values of unknown
/// keys; only a removal that cannot be written loses them. A process that is killed at any moment
/// leaves the old file or the new one. A damaged file, or one longer than 64 KiB, is moved into a
/// new folder beside it, `<application id>.plist.damaged-XXXXXX/`, and then counts as empty.
/// Use it from one thread at a time; several processes may share one file.
class NSUserDefaults {
public:
    /// `folder`: by default the user's configuration folder (XDG_CONFIG_HOME or ~/.config).
    /// The first write creates folder and file.
    explicit NSUserDefaults(const QString &applicationId, const QString &folder = QString());

    /// The data under `key`; nil if it is absent or of another type, or if the file cannot be read.
    [[nodiscard]] std::optional<QByteArray> dataForKey(const QString &key) const;

    /// Stores `data` under `key`, or removes the key if `data` is nil. False if nothing was
    /// changed: the folder is not writable, the disk is full, the file would exceed 64 KiB, or
    /// another process held the lock for a tenth of a second.
    [[nodiscard]] bool setObject(const std::optional<QByteArray> &data, const QString &key);

    /// Removes `key`, and the file with its last key. Also deletes files that were moved aside and
    /// the temporary file of a killed writer, which may contain the value. If the other keys cannot
    /// be written, it deletes the file with them, which takes no space. False if the value remains.
    [[nodiscard]] bool removeObjectForKey(const QString &key);

private:
    [[nodiscard]] bool writeWithout(const QString &key);

    DefaultsFile m_file;
};
