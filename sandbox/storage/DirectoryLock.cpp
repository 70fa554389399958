// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/DirectoryLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace sandbox {

QString DirectoryLock::take(const QString &directory)
{
    const QString path = directory + u"/lock"_s;
    m_file.emplace(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!m_file->isOpen()) {
        return path + u": cannot be written"_s;
    }
    return ::flock(m_file->get(), LOCK_EX | LOCK_NB) == 0
        ? QString()
        : directory + u": another service is using this directory"_s;
}

} // namespace sandbox
