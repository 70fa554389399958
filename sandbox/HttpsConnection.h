// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/HttpsServer.h"

#include <boost/asio/ip/tcp.hpp>

#include <unordered_set>

namespace sandbox {

/// One accepted connection: handshake, then requests and answers in turn, until either side ends
/// it. It keeps itself alive while something is under way, and is used on the server's thread only.
class HttpsConnection {
public:
    /// Those that are open.
    using Set = std::unordered_set<HttpsConnection *>;

    /// Starts one: with a handshake that shows the context's certificate, or, without a context,
    /// with nothing. It is in the set while it lives; handler and set must outlive it.
    static void start(boost::asio::ip::tcp::socket socket, SSL_CTX *context,
                      const HttpsServer::Handler &handler, Set &all);

    HttpsConnection() = default;
    virtual ~HttpsConnection() = default;
    HttpsConnection(const HttpsConnection &) = delete;
    HttpsConnection &operator=(const HttpsConnection &) = delete;

    /// Closes it: now if it waits for a request, else after the answer under way.
    virtual void closeWhenIdle() = 0;
};

} // namespace sandbox
