// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/HTTPTransfer.h"

#include <curl/curl.h>

void HTTPTransfer::setConnection(const NSURLSessionConfiguration &configuration)
{
    CURL *easy = handle();
    HTTPSecurity::apply(easy, configuration, &m_closeNotify);
    if (!configuration.connectTo.isEmpty()) {
        const QByteArray everything = "::" + configuration.connectTo.toLatin1();
        m_connectTo.reset(curl_slist_append(nullptr, everything.constData()));
        curl_easy_setopt(easy, CURLOPT_CONNECT_TO, m_connectTo.get());
    }
    curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "https");
    // libcurl repeats an unanswered request on a reused connection, and takes surplus bytes of the
    // previous reply for the answer.
    curl_easy_setopt(easy, CURLOPT_FRESH_CONNECT, 1L);
    curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // The end of the session must not wait for a slow name look-up.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
}

void HTTPTransfer::setRequest(const HTTPProxy &proxy)
{
    CURL *easy = handle();
    const QByteArray coding = QByteArray("Accept-Encoding: ") + HTTPBody::acceptedCoding;
    m_headers.reset(curl_slist_append(nullptr, coding.constData()));
    if (m_requests.front().HTTPMethod() == "POST") {
        curl_slist_append(m_headers.get(), "Content-Type:");
        curl_easy_setopt(easy, CURLOPT_POST, 1L);
        curl_easy_setopt(easy, CURLOPT_POSTFIELDS, "");
        curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE, 0L);
    }
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, m_headers.get());
    curl_easy_setopt(easy, CURLOPT_URL, m_requests.front().URL().constData());
    // Empty values too: libcurl reads the environment for options that are not set.
    curl_easy_setopt(easy, CURLOPT_PROXY, proxy.url.constData());
    curl_easy_setopt(easy, CURLOPT_NOPROXY,
                     m_origin.isLoopback() ? "*" : proxy.exceptions.constData());
}

void HTTPTransfer::setCallbacks()
{
    CURL *easy = handle();
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, onHeader);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, onBody);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy, CURLOPT_XFERINFOFUNCTION, onProgress);
    curl_easy_setopt(easy, CURLOPT_XFERINFODATA, this);
    curl_easy_setopt(easy, CURLOPT_NOPROGRESS, 0L);
}
