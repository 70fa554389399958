// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/HttpsServer.h"

#include <boost/asio/ip/tcp.hpp>

namespace sandbox {

/// One accepted connection: handshake, then requests and answers in turn, until either side ends
/// it. It keeps itself alive while something is under way, and is used on the server's thread only.
namespace HttpsConnection {

/// Starts one: with a handshake that shows the context's certificate, or, without a context, with
/// nothing. The handler must outlive it.
void start(boost::asio::ip::tcp::socket socket, const HttpsServer::ConnectionSettings &settings,
           const HttpsServer::Handler &handler);

} // namespace HttpsConnection

} // namespace sandbox
