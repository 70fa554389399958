// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/Files.h"
#include "harness/TestRunner.h"
#include "platform/foundation/storage/NSUserDefaults.h"

#include <QTemporaryDir>

#include <optional>

#include <sys/stat.h>

/// User defaults in a folder of their own, and the file that holds them.
class DefaultsFixture : public QObject {
    Q_OBJECT

protected:
    static inline const QString id = QStringLiteral("example.wzt.Test");
    static inline const QString userKey = QStringLiteral("currentUser");

    static uint modeOf(const QString &path)
    {
        struct stat status = {};
        return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    [[nodiscard]] NSUserDefaults defaults() const { return NSUserDefaults(id, m_home->path()); }
    [[nodiscard]] QStringList entries() const
    {
        return QDir(m_folder).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    std::optional<QTemporaryDir> m_home;
    QString m_folder;
    QString m_file;

private Q_SLOTS:
    void init()
    {
        m_home.emplace();
        m_folder = m_home->filePath(id);
        m_file = m_folder + u'/' + id + QStringLiteral(".plist");
    }
};
