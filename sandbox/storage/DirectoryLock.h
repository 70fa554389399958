// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/FileDescriptor.h"

#include <QString>

#include <optional>

namespace sandbox {

/// Keeps a directory to one service at a time during its lifetime. The system releases the lock of
/// a process that dies.
class DirectoryLock {
public:
    /// Returns an empty text, or why the lock is not held.
    QString take(const QString &directory);

private:
    std::optional<FileDescriptor> m_file;
};

} // namespace sandbox
