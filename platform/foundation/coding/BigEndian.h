// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The smallest of 1, 2, 4 and 8 bytes that can hold `number`.
[[nodiscard]] constexpr int bytesNeededFor(quint64 number)
{
    return number >> 8 == 0 ? 1 : number >> 16 == 0 ? 2 : number >> 32 == 0 ? 4 : 8;
}

/// The lowest `size` bytes of `number`, in big-endian order.
[[nodiscard]] inline QByteArray bigEndian(quint64 number, int size)
{
    QByteArray bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8) {
        *byte = static_cast<char>(number);
    }
    return bytes;
}

/// The number in these big-endian bytes; in the last eight of a longer array.
[[nodiscard]] constexpr quint64 numberFromBigEndian(QByteArrayView bytes)
{
    quint64 number = 0;
    for (const char byte : bytes) {
        number = number << 8 | static_cast<uchar>(byte);
    }
    return number;
}
