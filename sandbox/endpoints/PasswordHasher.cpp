// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/PasswordHasher.h"

#include <sodium.h>

#include <array>

namespace sandbox {

PasswordHasher::PasswordHasher(size_t memory, unsigned long long passes)
    : m_passes(passes), m_memory(memory)
{
    if (sodium_init() >= 0) {
        m_dummyHash = hash("nobody");
    }
}

QString PasswordHasher::hash(const QByteArray &digest) const
{
    std::array<char, crypto_pwhash_STRBYTES> text{};
    const int failed = crypto_pwhash_str_alg(text.data(), digest.constData(),
                                             static_cast<unsigned long long>(digest.size()),
                                             m_passes, m_memory, crypto_pwhash_ALG_ARGON2ID13);
    return failed ? QString() : QString::fromLatin1(text.data());
}

bool PasswordHasher::matches(const QString &hash, const QByteArray &digest)
{
    return crypto_pwhash_str_verify(hash.toLatin1().constData(), digest.constData(),
                                    static_cast<unsigned long long>(digest.size()))
        == 0;
}

QByteArray PasswordHasher::fingerprint(const QByteArray &text)
{
    QByteArray fingerprint(crypto_generichash_BYTES, '\0');
    crypto_generichash(reinterpret_cast<unsigned char *>(fingerprint.data()),
                       static_cast<size_t>(fingerprint.size()),
                       reinterpret_cast<const unsigned char *>(text.constData()),
                       static_cast<unsigned long long>(text.size()), nullptr, 0);
    return fingerprint;
}

} // namespace sandbox
