// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>

#include <span>

/// One reader of foreign bytes.
struct FuzzTarget {
    /// Its folder in corpus/.
    QLatin1StringView name;
    /// Takes any bytes; ends the program where a rule of the reader is broken.
    void (*read)(const QByteArray &bytes);
};

[[nodiscard]] std::span<const FuzzTarget> fuzzTargets();
