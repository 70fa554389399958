// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

/// Keeps a directory to one service at a time, for as long as it lives; the system lets go of it
/// when a process dies.
class DirectoryLock {
public:
    DirectoryLock() = default;
    ~DirectoryLock();
    Q_DISABLE_COPY_MOVE(DirectoryLock)

    /// Returns an empty text, or why the directory cannot be had.
    QString take(const QString &directory);

private:
    int m_file = -1;
};

} // namespace sandbox
