// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringDecoder>

/// Decodes UTF-8. It keeps a U+FEFF at the beginning, which QString::fromUtf8 drops.
[[nodiscard]] inline QString textFromUTF8(QByteArrayView bytes)
{
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom)
        .decode(bytes);
}
