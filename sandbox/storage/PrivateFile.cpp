// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/PrivateFile.h"

#include "platform/files/FileDescriptor.h"
#include "platform/files/PrivateFiles.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <cerrno>
#include <cstring>

namespace sandbox {

namespace {

QString failureOf(const QString &path)
{
    return path + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

QString makePrivateDirectory(const QString &path)
{
    const FileDescriptor folder(PrivateFiles::openFolder(QFile::encodeName(path)));
    const bool isPrivate = folder.isOpen() && ::fchmod(folder.get(), PrivateFiles::folderMode) == 0;
    return isPrivate ? QString() : failureOf(path);
}

QString writePrivateFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo file(path);
    const FileDescriptor folder(PrivateFiles::openFolder(QFile::encodeName(file.path())));
    const bool isWritten = folder.isOpen()
        && PrivateFiles::replace(folder.get(), QFile::encodeName(file.fileName()), bytes,
                                 PrivateFiles::Durability::Unsynced);
    return isWritten ? QString() : failureOf(path);
}

} // namespace sandbox
