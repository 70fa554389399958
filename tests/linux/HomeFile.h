// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>

/// A file by its path below the home folder, its folders made.
inline bool writeHomeFile(const QString &path, const QByteArray &content)
{
    QFile file(QDir::home().filePath(path));
    return QDir().mkpath(file.fileName().section(u'/', 0, -2)) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

/// Empty when there is no such file.
inline QByteArray readHomeFile(const QString &path)
{
    QFile file(QDir::home().filePath(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
