// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace sandbox {

/// Turns the digests that clients send into what may be stored, slowly on purpose. Safe on any
/// thread.
class PasswordHasher {
public:
    /// Memory of one hash in bytes (8192 or more), and its passes (1 or more).
    PasswordHasher(size_t memory, unsigned long long passes);

    /// False if the cryptographic library cannot work with these settings.
    [[nodiscard]] bool isReady() const { return !m_dummyHash.isEmpty(); }
    /// An Argon2id hash with its salt and settings, as text; empty when memory is short.
    [[nodiscard]] QString hash(const QByteArray &digest) const;
    /// Whether the hash was made of that digest.
    [[nodiscard]] static bool matches(const QString &hash, const QByteArray &digest);
    /// Takes the time of matches(), so that an unknown address is not told by an early answer.
    void verifyDummy(const QByteArray &digest) const { (void)matches(m_dummyHash, digest); }

    /// A fast hash, for texts that nobody can guess.
    [[nodiscard]] static QByteArray fingerprint(const QByteArray &text);

private:
    unsigned long long m_passes;
    size_t m_memory;
    QString m_dummyHash;
};

} // namespace sandbox
