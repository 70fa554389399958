// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/BusHello.h"

#include <QtEndian>

namespace {

QByteArray littleEndian(qsizetype number)
{
    const quint32 bytes = qToLittleEndian(static_cast<quint32>(number));
    return {reinterpret_cast<const char *>(&bytes), sizeof bytes};
}

void padToEight(QByteArray &bytes)
{
    bytes.append((8 - bytes.size() % 8) % 8, '\0');
}

} // namespace

QByteArray helloCall()
{
    struct Field {
        char code;
        char type;
        QByteArray value;
    };
    const Field fields[] = {{1, 'o', "/org/freedesktop/DBus"},
                            {2, 's', "org.freedesktop.DBus"},
                            {3, 's', "Hello"},
                            {6, 's', "org.freedesktop.DBus"}};
    QByteArray header;
    for (const auto &[code, type, value] : fields) {
        const char signature[] = {code, 1, type, 0};
        padToEight(header);
        header +=
            QByteArray(signature, sizeof signature) + littleEndian(value.size()) + value + '\0';
    }
    QByteArray message = QByteArray("l\1\0\1", 4) + littleEndian(0) + littleEndian(1)
        + littleEndian(header.size()) + header;
    padToEight(message);
    return message;
}
