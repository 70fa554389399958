// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/HttpsServer.h"

#include <boost/asio/ip/tcp.hpp>

namespace sandbox {

/// An accepted connection: a TLS handshake, then requests and answers in turn. It keeps itself
/// alive during its operations. Used on the server's thread only.
namespace HttpsConnection {

/// Starts a connection. Without a context it makes no handshake and only discards input. The
/// handler must outlive it.
void start(boost::asio::ip::tcp::socket socket, const HttpsServer::ConnectionSettings &settings,
           const HttpsServer::Handler &handler);

} // namespace HttpsConnection

} // namespace sandbox
