// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/certificates/Certificate.h"
#include "sandbox/http/ConnectionKind.h"

#include <QString>

#include <array>

using SSL_CTX = struct ssl_ctx_st;

namespace sandbox {

/// The service's authority and certificates. They persist in its directory, and are made anew when
/// they are missing, damaged or about to expire.
class CertificateStore {
public:
    /// Reads or makes them; `now` in seconds since 1970. Returns an empty text, or the reason of a
    /// failure.
    QString open(const QString &directory, qint64 now);
    /// The TLS context for a connection of that kind; null for one without a handshake.
    [[nodiscard]] SSL_CTX *context(ConnectionKind kind) const;

    /// The file with the authority's certificate.
    static QString caFile(const QString &directory);

private:
    QString openAuthority(const QString &directory, qint64 now);
    QString openLeaf(const QString &directory, qint64 now);
    QString makeContexts(qint64 now);

    Certificate m_authority;
    Certificate m_leaf;
    std::array<std::shared_ptr<SSL_CTX>, 6> m_contexts;
};

} // namespace sandbox
