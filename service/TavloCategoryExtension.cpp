// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/TavloCategoryExtension.h"

#include <QCryptographicHash>

QString SHA256(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    const qsizetype end = bytes.indexOf('\0');
    if (end >= 0)
        bytes.truncate(end);
    const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex());
}
