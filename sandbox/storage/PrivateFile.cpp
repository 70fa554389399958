// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/PrivateFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

QString failure(const QString &path)
{
    return path + u": "_s + QString::fromLocal8Bit(std::strerror(errno));
}

bool writeAll(int file, const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t size =
            ::write(file, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (size < 0 && errno != EINTR) {
            return false;
        }
        written += size > 0 ? size : 0;
    }
    return true;
}

} // namespace

QString makePrivateDirectory(const QString &path)
{
    const QString parent = QFileInfo(path).absolutePath();
    const QByteArray name = QFile::encodeName(path);
    QDir().mkpath(parent);
    if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST) {
        return failure(path);
    }
    return ::chmod(name.constData(), 0700) == 0 ? QString() : failure(path);
}

QString writePrivateFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = QFile::encodeName(path);
    const QByteArray temporary = name + ".new";
    ::unlink(temporary.constData());
    const int file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0) {
        return failure(path);
    }
    const bool isWritten = writeAll(file, bytes);
    if (::close(file) != 0 || !isWritten
        || ::rename(temporary.constData(), name.constData()) != 0) {
        const QString reason = failure(path);
        ::unlink(temporary.constData());
        return reason;
    }
    return {};
}

} // namespace sandbox
