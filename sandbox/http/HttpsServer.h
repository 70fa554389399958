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

/// An HTTPS server on the loopback addresses (HTTP/1.1, RFC 9112). Accepts connections, reads
/// requests, and sends transmissions; it does not know paths, accounts or faults. All its input and
/// output runs on one thread of its own. An exception there closes only its connection.
class HttpsServer {
public:
    /// Sends the answer to one request. Call it once, at any time, on any thread.
    using Answer = std::function<void(Transmission)>;
    /// Called on the server's thread with each request; must not block.
    using Handler = std::function<void(Request, const Answer &)>;
    /// The settings of one connection.
    struct ConnectionSettings {
        /// The TLS context with the certificate; null for no handshake. The server keeps its own
        /// reference.
        SSL_CTX *context = nullptr;
        /// The time before the handshake.
        std::chrono::milliseconds delay{0};
    };
    /// Called on the server's thread for each connection.
    using ConnectionSetup = std::function<ConnectionSettings()>;

    HttpsServer(Handler handler, ConnectionSetup connectionSettings);
    ~HttpsServer();
    Q_DISABLE_COPY_MOVE(HttpsServer)

    /// Listens on 127.0.0.1, and on the same port of ::1 if the machine has it. Port 0 means a free
    /// port. Returns an empty text, or the reason of a failure.
    QString start(quint16 port);
    /// Ends the thread. After it no handler is called and answers have no effect. The destructor
    /// closes the connections; it must not run before the last `Answer` is destroyed.
    void stop();

    [[nodiscard]] quint16 port() const;
    /// The number of TCP connections accepted so far.
    [[nodiscard]] int connectionCount() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace sandbox
