// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/StateFiles.h"

#include "platform/files/FileDescriptor.h"
#include "platform/files/PrivateFolder.h"

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

QString makeStateFolder(const QString &path)
{
    const FileDescriptor folder(PrivateFolder::open(QFile::encodeName(path)));
    const bool isPrivate = folder.isOpen() && ::fchmod(folder.get(), PrivateFolder::mode) == 0;
    return isPrivate ? QString() : failureOf(path);
}

QString writeStateFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo file(path);
    const FileDescriptor folder(PrivateFolder::open(QFile::encodeName(file.path())));
    const bool isWritten = folder.isOpen()
        && PrivateFolder::replace(folder.get(), QFile::encodeName(file.fileName()), bytes,
                                  PrivateFolder::Durability::Unsynced);
    return isWritten ? QString() : failureOf(path);
}

} // namespace sandbox
