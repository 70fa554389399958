// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>
#include <optional>

namespace sandbox {

/// An X.509 certificate (RFC 5280) and its private key.
struct Certificate {
    std::shared_ptr<X509> x509;
    std::shared_ptr<EVP_PKEY> key;

    /// Reads PEM (RFC 7468). Nil unless both are valid and belong together.
    static std::optional<Certificate> read(const QByteArray &certificate, const QByteArray &key);
    [[nodiscard]] QByteArray certificatePem() const;
    [[nodiscard]] QByteArray keyPem() const;
    /// Whether it is valid from `now` to `until` (seconds since 1970) and signed by the issuer,
    /// which may be the certificate itself.
    [[nodiscard]] bool isValid(const Certificate &issuer, qint64 now, qint64 until) const;
};

/// Makes an authority whose constraints allow only localhost and the loopback addresses, and no
/// subordinate authorities: P-256, valid for ten years from an hour before `now`. Nil if the
/// cryptographic library fails.
std::optional<Certificate> makeAuthority(qint64 now);

/// Makes a server's certificate for these names ("DNS:localhost,IP:127.0.0.1"), signed by the
/// authority, valid between the two times.
std::optional<Certificate> issue(const Certificate &authority, const QByteArray &names, qint64 from,
                                 qint64 until);

} // namespace sandbox
