// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/BareConnection.h"

#include <openssl/bio.h>
#include <openssl/ssl.h>

BareConnection::BareConnection(quint16 port, const QString &caFile)
    : m_context(SSL_CTX_new(TLS_client_method()), SSL_CTX_free),
      m_stream(BIO_new_ssl_connect(m_context.get()), BIO_free_all)
{
    SSL *ssl = nullptr;
    BIO_get_ssl(m_stream.get(), &ssl);
    SSL_set_verify(ssl, SSL_VERIFY_PEER, nullptr);
    SSL_set1_host(ssl, "localhost");
    QByteArray address = "127.0.0.1:" + QByteArray::number(port);
    BIO_set_conn_hostname(m_stream.get(), address.data());
    if (SSL_CTX_load_verify_file(m_context.get(), qPrintable(caFile)) != 1
        || BIO_do_handshake(m_stream.get()) != 1) {
        qFatal("no connection to the service");
    }
}

BareConnection::~BareConnection() = default;

QByteArray BareConnection::exchange(const QByteArray &request, const QByteArray &end)
{
    BIO_write(m_stream.get(), request.constData(), static_cast<int>(request.size()));
    QByteArray reply;
    while (!reply.endsWith(end)) {
        char piece[4096];
        const int length = BIO_read(m_stream.get(), piece, sizeof piece);
        if (length <= 0) {
            qFatal("the service hung up");
        }
        reply.append(piece, length);
    }
    return reply;
}
