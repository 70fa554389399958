// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringDecoder>

/// The text of these bytes, a U+FEFF at its beginning included, which QString::fromUtf8 drops.
[[nodiscard]] inline QString textFromUTF8(QByteArrayView bytes)
{
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom)
        .decode(bytes);
}
