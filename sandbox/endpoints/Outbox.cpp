// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/Outbox.h"

#include "sandbox/storage/StateFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace sandbox {

bool Outbox::write(const QByteArray &message)
{
    if (!makeStateFolder(m_directory).isEmpty()) {
        return false;
    }
    const QString name = u"%1/%2-%3.eml"_s.arg(
        m_directory, QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd'T'HHmmss.zzz'Z'"),
        u"%1"_s.arg(++m_written, 6, 10, '0'_L1));
    return writeStateFile(name, message).isEmpty();
}

QByteArrayList Outbox::messages() const
{
    const QDir directory(m_directory);
    QByteArrayList messages;
    const QStringList names = directory.entryList({u"*.eml"_s}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            messages.append(file.readAll());
        }
    }
    return messages;
}

} // namespace sandbox
