// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace sandbox {

/// Hashes the password digests of clients for storage, by Argon2id (RFC 9106). Safe on any thread.
class PasswordHasher {
public:
    /// The memory of one hash in bytes (8192 or more), and its passes (1 or more).
    PasswordHasher(size_t memory, unsigned long long passes);

    /// False if the cryptographic library refuses these settings.
    [[nodiscard]] bool isReady() const { return !m_dummyHash.isEmpty(); }
    /// An Argon2id hash with its salt and settings, as text; empty without memory.
    [[nodiscard]] QString hash(const QByteArray &digest) const;
    /// Whether it is the hash of that digest.
    [[nodiscard]] static bool matches(const QString &hash, const QByteArray &digest);
    /// Takes the time of matches(), so that a fast answer cannot reveal an unknown address.
    void verifyDummy(const QByteArray &digest) const { (void)matches(m_dummyHash, digest); }

    /// A fast hash (BLAKE2b, RFC 7693), for random texts.
    [[nodiscard]] static QByteArray fingerprint(const QByteArray &text);

private:
    unsigned long long m_passes;
    size_t m_memory;
    QString m_dummyHash;
};

} // namespace sandbox
