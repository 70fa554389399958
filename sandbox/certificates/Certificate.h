// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>
#include <optional>

namespace sandbox {

/// A certificate and the private key that belongs to it.
struct Certificate {
    std::shared_ptr<X509> x509;
    std::shared_ptr<EVP_PKEY> key;

    /// From PEM; absent unless both can be read and belong together.
    static std::optional<Certificate> read(const QByteArray &certificate, const QByteArray &key);
    [[nodiscard]] QByteArray certificatePem() const;
    [[nodiscard]] QByteArray keyPem() const;
    /// Whether it is in date at both moments (seconds since 1970) and signed by the issuer, which
    /// may be itself.
    [[nodiscard]] bool isValid(const Certificate &issuer, qint64 now, qint64 until) const;
};

/// Makes an authority that may sign for localhost and the loopback addresses only, and through no
/// authority below it: P-256, in date from an hour before `now` for ten years. An empty value
/// when the cryptographic library fails.
std::optional<Certificate> makeAuthority(qint64 now);

/// Makes a server's certificate for these names ("DNS:localhost,IP:127.0.0.1"), signed by the
/// authority, in date between the two moments.
std::optional<Certificate> issue(const Certificate &authority, const QByteArray &names, qint64 from,
                                 qint64 until);

} // namespace sandbox
