// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The fewest of 1, 2, 4 and 8 bytes that hold `number`.
[[nodiscard]] constexpr int bytesFor(quint64 number)
{
    return number >> 8 == 0 ? 1 : number >> 16 == 0 ? 2 : number >> 32 == 0 ? 4 : 8;
}

/// The lowest `size` bytes of `number`, the highest first.
[[nodiscard]] inline QByteArray bigEndian(quint64 number, int size)
{
    QByteArray bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8) {
        *byte = static_cast<char>(number);
    }
    return bytes;
}

/// The number that these bytes are; of more than eight bytes the last eight.
[[nodiscard]] constexpr quint64 numberIn(QByteArrayView bytes)
{
    quint64 number = 0;
    for (const char byte : bytes) {
        number = number << 8 | static_cast<uchar>(byte);
    }
    return number;
}
