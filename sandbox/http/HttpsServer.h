// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Request.h"
#include "sandbox/http/Transmission.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

using SSL_CTX = struct ssl_ctx_st;

namespace sandbox {

/// HTTPS on the loopback addresses: accepts, reads requests, sends what it is told to. It knows
/// nothing of paths, accounts or faults, and all its waiting is done on one thread of its own,
/// which survives whatever is thrown there: the connection that it was thrown for is closed.
class HttpsServer {
public:
    /// Takes the bytes that answer a request, once, on any thread, as late as it likes.
    using Answer = std::function<void(Transmission)>;
    /// Called on the server's thread with each request; must not block.
    using Handler = std::function<void(Request, const Answer &)>;
    /// How a connection is received.
    struct ConnectionSettings {
        /// The certificate to show it; null leaves it without a handshake. The server keeps a
        /// reference of its own.
        SSL_CTX *context = nullptr;
        /// Before the handshake.
        std::chrono::milliseconds delay{0};
    };
    /// Called on the server's thread for each connection.
    using ConnectionSetup = std::function<ConnectionSettings()>;

    HttpsServer(Handler handler, ConnectionSetup connectionSettings);
    ~HttpsServer();
    Q_DISABLE_COPY_MOVE(HttpsServer)

    /// Listens on 127.0.0.1, and at the same port on ::1 where the machine has it. Port 0 picks a
    /// free one. Returns an empty text, or why it cannot.
    QString start(quint16 port);
    /// Ends the thread; no handler is called from then on, and answers have no effect. Connections
    /// are closed by the destructor, which must not run before the last answer has been dropped.
    void stop();

    [[nodiscard]] quint16 port() const;
    /// TCP connections accepted so far.
    [[nodiscard]] int connectionCount() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace sandbox
