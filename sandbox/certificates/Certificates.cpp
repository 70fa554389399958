// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/certificates/Certificates.h"

#include "sandbox/storage/PrivateFile.h"

#include <QFile>

#include <openssl/err.h>
#include <openssl/ssl.h>

#include <cstring>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr qint64 day = 86'400;
constexpr qint64 leafLife = 397 * day;
// A service that is started now may well run for some days.
constexpr qint64 reserve = 7 * day;
constexpr auto rightNames = "DNS:localhost,IP:127.0.0.1,IP:::1";
// Within the authority's constraints, so that nothing but the name is wrong.
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
    const QString error = writePrivateFile(stem + u".key"_s, certificate.keyPem());
    return error.isEmpty() ? writePrivateFile(stem + u".pem"_s, certificate.certificatePem())
                           : error;
}

int chooseHttp11(SSL *, const unsigned char **chosen, unsigned char *chosenSize,
                 const unsigned char *offered, unsigned int offeredSize, void *)
{
    static constexpr unsigned char ours[] = "\x08http/1.1";
    unsigned char *found = nullptr;
    if (SSL_select_next_proto(&found, chosenSize, ours, sizeof ours - 1, offered, offeredSize)
        != OPENSSL_NPN_NEGOTIATED) {
        return SSL_TLSEXT_ERR_ALERT_FATAL;
    }
    *chosen = found;
    return SSL_TLSEXT_ERR_OK;
}

std::shared_ptr<SSL_CTX> makeContext(const std::optional<Certificate> &certificate)
{
    const std::shared_ptr<SSL_CTX> context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free);
    if (!context || !certificate
        || SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION) != 1
        || SSL_CTX_use_certificate(context.get(), certificate->x509.get()) != 1
        || SSL_CTX_use_PrivateKey(context.get(), certificate->key.get()) != 1) {
        return {};
    }
    SSL_CTX_set_alpn_select_cb(context.get(), chooseHttp11, nullptr);
    return context;
}

std::shared_ptr<SSL_CTX> makeOldContext(const Certificate &certificate)
{
    std::shared_ptr<SSL_CTX> context = makeContext(certificate);
    if (context) {
        // At any other level the signatures of that time are refused.
        SSL_CTX_set_security_level(context.get(), 0);
        SSL_CTX_set_min_proto_version(context.get(), TLS1_VERSION);
        SSL_CTX_set_max_proto_version(context.get(), TLS1_1_VERSION);
    }
    return context;
}

} // namespace

QString Certificates::caFile(const QString &directory)
{
    return directory + u"/ca.pem"_s;
}

QString Certificates::open(const QString &directory, qint64 now)
{
    QString error = openAuthority(directory, now);
    if (error.isEmpty()) {
        error = openLeaf(directory, now);
    }
    if (error.isEmpty()) {
        error = makeContexts(now);
    }
    // What a damaged file left on this thread's queue is nobody's business any more.
    ERR_clear_error();
    return error;
}

QString Certificates::openAuthority(const QString &directory, qint64 now)
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

QString Certificates::openLeaf(const QString &directory, qint64 now)
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

QString Certificates::makeContexts(qint64 now)
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

SSL_CTX *Certificates::context(ConnectionKind kind) const
{
    const auto index = static_cast<size_t>(kind);
    return index < m_contexts.size() ? m_contexts[index].get() : nullptr;
}

} // namespace sandbox
