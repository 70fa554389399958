// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/HTTPSecurity.h"

#include <curl/curl.h>
#include <openssl/ssl.h>

#include <QFile>

namespace {

constexpr char systemAuthorities[] = "/etc/ssl/certs";

using HTTPSecurity::Farewell;

/// The place of a context's farewell. The context owns it: it may outlive the transfer.
int farewellIndex()
{
    const auto drop = [](void *, void *held, CRYPTO_EX_DATA *, int, long, void *) {
        delete static_cast<Farewell *>(held);
    };
    static const int index = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, drop);
    return index;
}

void onState(const SSL *connection, int state, int value)
{
    if (state == SSL_CB_READ_ALERT && (value & 0xff) == SSL_AD_CLOSE_NOTIFY) {
        const SSL_CTX *context = SSL_get_SSL_CTX(connection);
        **static_cast<Farewell *>(SSL_CTX_get_ex_data(context, farewellIndex())) = true;
    }
}

CURLcode onContext(CURL *, void *given, void *user)
{
    auto *context = static_cast<SSL_CTX *>(given);
    const auto farewell = std::make_shared<bool>(false);
    SSL_CTX_set_ex_data(context, farewellIndex(), new Farewell(farewell));
    SSL_CTX_set_info_callback(context, onState);
    // Or a server that sends key updates without end would keep the thread within one call.
    SSL_CTX_clear_mode(context, SSL_MODE_AUTO_RETRY);
    // What is read ahead would wait unseen: the next call comes when the socket has more.
    SSL_CTX_set_read_ahead(context, 0);
    *static_cast<Farewell *>(user) = farewell;
    return CURLE_OK;
}

} // namespace

void HTTPSecurity::apply(void *easy, const NSURLSessionConfiguration &configuration,
                         Farewell *farewell)
{
    if (configuration.certificateAuthorityFile.isEmpty()) {
        // The folder is looked up by hash; the bundle file would be parsed for every connection.
        curl_easy_setopt(easy, CURLOPT_CAINFO, nullptr);
        curl_easy_setopt(easy, CURLOPT_CAPATH, systemAuthorities);
    } else {
        const QByteArray file = QFile::encodeName(configuration.certificateAuthorityFile);
        curl_easy_setopt(easy, CURLOPT_CAINFO, file.constData());
        curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
    }
    // Whatever the system's configuration says.
    curl_easy_setopt(easy, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    *farewell = std::make_shared<bool>(false);
    curl_easy_setopt(easy, CURLOPT_SSL_CTX_FUNCTION, onContext);
    curl_easy_setopt(easy, CURLOPT_SSL_CTX_DATA, farewell);
}
