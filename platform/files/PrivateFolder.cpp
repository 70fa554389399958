// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/files/PrivateFolder.h"

#include "platform/files/FileDescriptor.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t fileMode = 0600;

bool writeAll(int descriptor, const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const ssize_t length = write(descriptor, content.constData() + done,
                                     static_cast<size_t>(content.size() - done));
        if (length < 0 && errno != EINTR) {
            return false;
        }
        done += std::max<ssize_t>(length, 0);
    }
    return true;
}

bool writeNew(int folder, const QByteArray &name, const QByteArray &content, bool isSynced)
{
    const FileDescriptor file(
        openat(folder, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileMode));
    return file.isOpen() && fchmod(file.get(), fileMode) == 0 && writeAll(file.get(), content)
        && (!isSynced || fsync(file.get()) == 0);
}

} // namespace

int PrivateFolder::open(const QByteArray &path)
{
    QDir().mkpath(QFile::decodeName(path) + QStringLiteral("/.."));
    mkdir(path.constData(), mode);
    return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

QByteArray PrivateFolder::temporaryName(const QByteArray &name)
{
    return name + ".tmp";
}

bool PrivateFolder::replace(int folder, const QByteArray &name, const QByteArray &content,
                            Durability durability)
{
    // The name never varies, so a killed writer leaves one file, and the next writer removes it.
    const QByteArray temporary = temporaryName(name);
    const bool isSynced = durability == Durability::Synced;
    unlinkat(folder, temporary.constData(), 0);
    if (!writeNew(folder, temporary, content, isSynced)
        || renameat(folder, temporary.constData(), folder, name.constData()) != 0) {
        const int reason = errno;
        unlinkat(folder, temporary.constData(), 0);
        errno = reason;
        return false;
    }
    if (isSynced) {
        // Without this a power cut might bring the old file back.
        fsync(folder);
    }
    return true;
}
