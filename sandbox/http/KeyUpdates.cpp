// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/KeyUpdates.h"

#include <openssl/err.h>
#include <openssl/ssl.h>

using boost::asio::ip::tcp;
using boost::system::error_code;

namespace sandbox {

namespace {

constexpr int updatesPerStep = 1000;

void sendNext(tcp::socket &socket, SSL *ssl, int left, std::function<void()> sent)
{
    int state = SSL_ERROR_NONE;
    for (int i = 0; i < updatesPerStep && left > 0 && state == SSL_ERROR_NONE; ++i, --left) {
        SSL_key_update(ssl, SSL_KEY_UPDATE_NOT_REQUESTED);
        ERR_clear_error();
        state = SSL_get_error(ssl, SSL_do_handshake(ssl));
    }
    if (state != SSL_ERROR_NONE && state != SSL_ERROR_WANT_WRITE) {
        return;
    }
    if (state == SSL_ERROR_NONE && left == 0) {
        return sent();
    }
    socket.async_wait(tcp::socket::wait_write,
                      [&socket, ssl, left, sent = std::move(sent)](error_code error) mutable {
                          if (!error) {
                              sendNext(socket, ssl, left, std::move(sent));
                          }
                      });
}

} // namespace

void sendKeyUpdates(tcp::socket &socket, SSL *ssl, int count, std::function<void()> sent)
{
    // The stream sends none without a byte of data, so they bypass it.
    error_code ignored;
    socket.non_blocking(true, ignored);
    SSL_set0_wbio(ssl, BIO_new_socket(socket.native_handle(), BIO_NOCLOSE));
    sendNext(socket, ssl, count, std::move(sent));
}

} // namespace sandbox
