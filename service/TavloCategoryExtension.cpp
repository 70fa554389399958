// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/TavloCategoryExtension.h"

#include <QCryptographicHash>

#include <cstring>

QString SHA256(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    const QByteArray digest =
        QCryptographicHash::hash(QByteArrayView(bytes.constData()), QCryptographicHash::Sha256);
    explicit_bzero(bytes.data(), static_cast<size_t>(bytes.size()));
    return QString::fromLatin1(digest.toHex());
}
