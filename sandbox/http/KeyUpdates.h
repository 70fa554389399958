// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <boost/asio/ip/tcp.hpp>

#include <functional>

using SSL = struct ssl_st;

namespace sandbox {

/// Sends `count` TLS key updates (RFC 8446, 4.6.3) over the connection, and calls `sent` after the
/// last one. `sent` keeps the connection alive; it is dropped without a call when the connection
/// fails.
void sendKeyUpdates(boost::asio::ip::tcp::socket &socket, SSL *ssl, int count,
                    std::function<void()> sent);

} // namespace sandbox
