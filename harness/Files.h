// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QTest>

/// Files as a test has them in front of itself.
namespace Files {

/// Empty for a file that cannot be read.
[[nodiscard]] inline QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes the folder around it as well.
inline void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(path.section(u'/', 0, -2)));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace Files
