// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <sys/types.h>

/// Files and folders that only their user may use. Paths and names are encoded as the system has
/// them. Operations that fail leave the reason in errno.
namespace PrivateFolder {

inline constexpr mode_t mode = 0700;

/// Opens a folder, made with `mode` if it is missing, its parents too. An existing folder
/// keeps its mode. Negative on failure.
[[nodiscard]] int open(const QByteArray &path);

/// The name under which `replace` writes a file before it renames it.
[[nodiscard]] QByteArray temporaryName(const QByteArray &name);

enum class Durability {
    /// The file is on the disk when the call returns.
    Synced,
    /// A power cut may leave an old or an empty file.
    Unsynced,
};

/// Replaces the file `name` of an open folder, whatever it is, by one of mode 0600. A process that
/// is killed at any moment leaves the old file or the new one. False: nothing was changed.
[[nodiscard]] bool replace(int folder, const QByteArray &name, const QByteArray &content,
                           Durability durability = Durability::Synced);

} // namespace PrivateFolder
