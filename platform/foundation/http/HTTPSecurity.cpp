// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/HTTPSecurity.h"

#include <curl/curl.h>
#include <openssl/ssl.h>

#include <QFile>

namespace {

constexpr char systemAuthorities[] = "/etc/ssl/certs";

using HTTPSecurity::CloseNotify;

/// The index of a context's CloseNotify. The context owns a copy, because it may outlive the
/// transfer.
int closeNotifyIndex()
{
    const auto deleteHeld = [](void *, void *held, CRYPTO_EX_DATA *, int, long, void *) {
        delete static_cast<CloseNotify *>(held);
    };
    static const int index = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, deleteHeld);
    return index;
}

void onState(const SSL *connection, int state, int value)
{
    if (state == SSL_CB_READ_ALERT && (value & 0xff) == SSL_AD_CLOSE_NOTIFY) {
        const SSL_CTX *context = SSL_get_SSL_CTX(connection);
        **static_cast<CloseNotify *>(SSL_CTX_get_ex_data(context, closeNotifyIndex())) = true;
    }
}

CURLcode onContext(CURL *, void *given, void *user)
{
    auto *context = static_cast<SSL_CTX *>(given);
    const auto closeNotify = std::make_shared<bool>(false);
    SSL_CTX_set_ex_data(context, closeNotifyIndex(), new CloseNotify(closeNotify));
    SSL_CTX_set_info_callback(context, onState);
    // With it, endless key updates of a server would keep the thread within one call.
    SSL_CTX_clear_mode(context, SSL_MODE_AUTO_RETRY);
    // Data that was read ahead would wait in the buffer until the socket has more.
    SSL_CTX_set_read_ahead(context, 0);
    *static_cast<CloseNotify *>(user) = closeNotify;
    return CURLE_OK;
}

} // namespace

void HTTPSecurity::apply(void *easy, const NSURLSessionConfiguration &configuration,
                         CloseNotify *closeNotify)
{
    if (configuration.certificateAuthorityFile.isEmpty()) {
        // OpenSSL looks a folder up by hash; it would parse a bundle file for every connection.
        curl_easy_setopt(easy, CURLOPT_CAINFO, nullptr);
        curl_easy_setopt(easy, CURLOPT_CAPATH, systemAuthorities);
    } else {
        const QByteArray file = QFile::encodeName(configuration.certificateAuthorityFile);
        curl_easy_setopt(easy, CURLOPT_CAINFO, file.constData());
        curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
    }
    // The system's configuration may allow older versions.
    curl_easy_setopt(easy, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    *closeNotify = std::make_shared<bool>(false);
    curl_easy_setopt(easy, CURLOPT_SSL_CTX_FUNCTION, onContext);
    curl_easy_setopt(easy, CURLOPT_SSL_CTX_DATA, closeNotify);
}
