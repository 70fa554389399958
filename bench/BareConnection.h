// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct bio_st;
struct ssl_ctx_st;

/// One TLS connection and nothing around it: a request's bytes go out, its reply's come in.
class BareConnection {
public:
    /// Connects to that port of this machine, which `caFile` is to vouch for as "localhost".
    BareConnection(quint16 port, const QString &caFile);
    ~BareConnection();
    Q_DISABLE_COPY_MOVE(BareConnection)

    /// The reply to `request`, read until it ends in `end`.
    QByteArray exchange(const QByteArray &request, const QByteArray &end);

private:
    std::unique_ptr<ssl_ctx_st, void (*)(ssl_ctx_st *)> m_context;
    std::unique_ptr<bio_st, void (*)(bio_st *)> m_stream;
};
