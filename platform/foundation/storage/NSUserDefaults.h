// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/storage/PrivateFile.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// A few values that outlive the process: one binary property list for each application, readable
/// by its user alone, at `<folder>/<application id>/<application id>.plist`.
///
/// Each operation stands for itself: reads read the file, writes have replaced it, durably, when
/// they return, and keep every key they do not know, as it is; only a removal that cannot be
/// written drops them. A writer killed at any moment leaves the old file or the new one. A file
/// that is no property list, or longer than 64 KiB, is moved into a new folder beside it,
/// `<application id>.plist.damaged-XXXXXX/`, and counts as empty from then on.
/// Use it from one thread at a time; several processes may share one file.
class NSUserDefaults {
public:
    /// `folder`: empty for the user's configuration folder (XDG_CONFIG_HOME or ~/.config).
    /// Nothing is created before the first write.
    explicit NSUserDefaults(const QString &applicationId, const QString &folder = QString());

    /// The data under `key`; nil when there is none, when the value is no data, or when the file
    /// cannot be read.
    [[nodiscard]] std::optional<QByteArray> dataForKey(const QString &key) const;

    /// Stores `data` under `key`, replacing what was there; nil removes the key. False when
    /// nothing was changed: no writable folder, a full disk, more than 64 KiB in all, or another
    /// process in the middle of a write for a tenth of a second.
    [[nodiscard]] bool setObject(const std::optional<QByteArray> &data, const QString &key);

    /// Removes what is under `key`, the file with its last key, and what was moved aside, which may
    /// hold the value still. Where the other keys cannot be written anew they go as well: deleting
    /// the file takes no space. False when the value is still there.
    [[nodiscard]] bool removeObjectForKey(const QString &key);

private:
    [[nodiscard]] bool writeWithout(const QString &key);

    PrivateFile m_file;
};
