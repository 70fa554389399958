// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>

namespace sandbox {

/// Bytes for one connection, and how they are delivered.
struct Transmission {
    enum class Ending {
        /// The connection waits for the next request.
        KeepOpen,
        /// TLS and TCP are closed properly.
        Close,
        /// TCP is closed without TLS's close_notify, like a truncation.
        Cut,
        /// A TCP reset.
        Reset,
        /// The connection stays open and silent until the client closes it.
        Silence,
    };

    /// The time before the first byte.
    std::chrono::milliseconds delay{0};
    QByteArray bytes = {};
    /// The number of bytes sent at once; 0 for all.
    qint64 pieceSize = 0;
    /// The number of TLS key updates before the first byte. TCP is then closed after the last byte.
    int keyUpdates = 0;
    /// The time between two pieces.
    std::chrono::milliseconds pause{0};
    /// An endless body: blanks follow the bytes until the client closes the connection.
    bool isEndless = false;
    Ending ending = Ending::KeepOpen;
};

} // namespace sandbox
