// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/certificates/Certificate.h"
#include "sandbox/http/ConnectionKind.h"

#include <QString>

#include <array>

using SSL_CTX = struct ssl_ctx_st;

namespace sandbox {

/// The service's authority and certificates: kept in its directory from one start to the next, and
/// made anew when they are missing, damaged or about to run out.
class Certificates {
public:
    /// Reads or makes them. Returns an empty text, or why it cannot. Times in seconds since 1970.
    QString open(const QString &directory, qint64 now);
    /// What a connection of that kind is to be shown; null for one that is shown nothing.
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
