// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/certificates/TlsContext.h"

#include <openssl/ssl.h>

namespace sandbox {

namespace {

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

} // namespace

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
        // Higher levels refuse the signatures of these versions.
        SSL_CTX_set_security_level(context.get(), 0);
        SSL_CTX_set_min_proto_version(context.get(), TLS1_VERSION);
        SSL_CTX_set_max_proto_version(context.get(), TLS1_1_VERSION);
    }
    return context;
}

} // namespace sandbox
