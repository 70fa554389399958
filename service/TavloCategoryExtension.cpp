// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/TavloCategoryExtension.h"

#include "platform/foundation/base/Overwrite.h"

#include <QCryptographicHash>

QString SHA256(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    QByteArray digest =
        QCryptographicHash::hash(QByteArrayView(bytes.constData()), QCryptographicHash::Sha256);
    QByteArray digits = digest.toHex();
    const QString result = QString::fromLatin1(digits);
    overwrite(bytes);
    overwrite(digest);
    overwrite(digits);
    return result;
}
