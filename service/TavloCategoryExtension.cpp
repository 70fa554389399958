// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/TavloCategoryExtension.h"

#include "platform/foundation/base/Overwrite.h"

#include <QCryptographicHash>

QString SHA256(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    const QByteArray digest =
        QCryptographicHash::hash(QByteArrayView(bytes.constData()), QCryptographicHash::Sha256);
    overwrite(bytes);
    return QString::fromLatin1(digest.toHex());
}
