// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/certificates/CertificateStore.h"

#include "sandbox/certificates/TlsContext.h"
#include "sandbox/storage/StateFiles.h"

#include <QFile>

#include <openssl/err.h>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr qint64 day = 86'400;
constexpr qint64 leafLife = 397 * day;
// A service may run for some days.
constexpr qint64 reserve = 7 * day;
constexpr auto rightNames = "DNS:localhost,IP:127.0.0.1,IP:::1";
// Within the authority's constraints, so that only the name is wrong.
constexpr auto wrongNames = "DNS:elsewhere.localhost";

const QString failed = u"the cryptographic library failed"_s;

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(qint64{1} << 16) : QByteArray();
}

std::optional<Certificate> readPair(const QString &stem)
{
    return Certificate::read(contentsOf(stem + u".pem"_s), contentsOf(stem + u".key"_s));
}

QString writePair(const QString &stem, const Certificate &certificate)
{
    const QString error = writeStateFile(stem + u".key"_s, certificate.keyPem());
    return error.isEmpty() ? writeStateFile(stem + u".pem"_s, certificate.certificatePem()) : error;
}

} // namespace

QString CertificateStore::caFile(const QString &directory)
{
    return directory + u"/ca.pem"_s;
}

QString CertificateStore::open(const QString &directory, qint64 now)
{
    QString error = openAuthority(directory, now);
    if (error.isEmpty()) {
        error = openLeaf(directory, now);
    }
    if (error.isEmpty()) {
        error = makeContexts(now);
    }
    // Damaged files leave errors on this thread's queue.
    ERR_clear_error();
    return error;
}

QString CertificateStore::openAuthority(const QString &directory, qint64 now)
{
    const QString stem = directory + u"/ca"_s;
    const auto kept = readPair(stem);
    if (kept && kept->isValid(*kept, now, now + leafLife)) {
        m_authority = *kept;
        return {};
    }
    const auto made = makeAuthority(now);
    if (!made) {
        return failed;
    }
    m_authority = *made;
    return writePair(stem, m_authority);
}

QString CertificateStore::openLeaf(const QString &directory, qint64 now)
{
    const QString stem = directory + u"/server"_s;
    const auto kept = readPair(stem);
    if (kept && kept->isValid(m_authority, now, now + reserve)) {
        m_leaf = *kept;
        return {};
    }
    const auto made = issue(m_authority, rightNames, now - 3600, now - 3600 + leafLife);
    if (!made) {
        return failed;
    }
    m_leaf = *made;
    return writePair(stem, m_leaf);
}

QString CertificateStore::makeContexts(qint64 now)
{
    const auto stranger = makeAuthority(now);
    if (!stranger) {
        return failed;
    }
    m_contexts = {
        makeContext(m_leaf),
        makeContext(issue(m_authority, rightNames, now - 30 * day, now - day)),
        makeContext(issue(m_authority, wrongNames, now - 3600, now + leafLife)),
        makeContext(issue(*stranger, rightNames, now - 3600, now + leafLife)),
        makeOldContext(m_leaf),
        makeContext(m_leaf),
    };
    for (const auto &context : m_contexts) {
        if (!context) {
            return failed;
        }
    }
    return {};
}

SSL_CTX *CertificateStore::context(ConnectionKind kind) const
{
    const auto index = static_cast<size_t>(kind);
    return index < m_contexts.size() ? m_contexts[index].get() : nullptr;
}

} // namespace sandbox
