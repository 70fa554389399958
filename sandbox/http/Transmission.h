// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>

namespace sandbox {

/// Bytes for one connection, and the manner in which they are sent.
struct Transmission {
    enum class Ending {
        /// The connection waits for the next request.
        KeepOpen,
        /// TLS and TCP are closed in good order.
        Close,
        /// TCP is closed without TLS's close_notify: looks like a truncation.
        Cut,
        /// A TCP reset.
        Reset,
        /// Nothing more ever happens until the client goes.
        Silence,
    };

    /// Before the first byte.
    std::chrono::milliseconds delay{0};
    QByteArray bytes = {};
    /// Bytes sent at once; 0 is all of them.
    qint64 pieceSize = 0;
    /// So often TLS changes its keys before the first byte; TCP is closed after the last one then.
    int keyUpdates = 0;
    /// Between two pieces.
    std::chrono::milliseconds pause{0};
    /// Blanks follow the bytes until the client goes.
    bool isEndless = false;
    Ending ending = Ending::KeepOpen;
};

} // namespace sandbox
