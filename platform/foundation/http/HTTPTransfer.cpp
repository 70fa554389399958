// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/HTTPTransfer.h"

#include "platform/foundation/http/HTTPErrors.h"

#include <curl/curl.h>

#include <QByteArrayList>

#include <algorithm>
#include <array>

namespace {

constexpr size_t maximumRedirects = 20;
/// Of a field in one head. Each look-up scans the whole head.
constexpr qsizetype maximumRepetition = 8;
constexpr size_t maximumHeadLength = size_t{256} * 1024;

constexpr std::array connectionPhases{CURLINFO_NAMELOOKUP_TIME_T, CURLINFO_CONNECT_TIME_T,
                                      CURLINFO_APPCONNECT_TIME_T, CURLINFO_PRETRANSFER_TIME_T};

/// The path and the query of a URL: the target of its request (RFC 9112, 3.2.1).
QByteArrayView requestTarget(QByteArrayView url)
{
    const qsizetype fragment = url.indexOf('#');
    const QByteArrayView text = fragment < 0 ? url : url.first(fragment);
    const auto *host = text.begin() + text.indexOf("://") + 3;
    const auto *path = std::find_if(host, text.end(), [](char c) { return c == '/' || c == '?'; });
    return path == text.end() ? QByteArrayView("/") : QByteArrayView(path, text.end());
}

} // namespace

std::optional<URLErrorCode> HTTPTransfer::validate(const NSMutableURLRequest &request)
{
    const std::optional<URLOrigin> origin = URLOrigin::of(request.URL());
    if (!origin) {
        return NSURLErrorBadURL;
    }
    const QByteArray &method = request.HTTPMethod();
    const bool supported = origin->scheme == "https" && (method == "GET" || method == "POST");
    return supported ? std::nullopt : std::optional(NSURLErrorUnsupportedURL);
}

HTTPTransfer::HTTPTransfer(const NSMutableURLRequest &request,
                           const NSURLSessionConfiguration &configuration, const HTTPProxy &proxy)
    : m_requests{request},
      m_origin(URLOrigin::of(request.URL()).value_or(URLOrigin())),
      m_maximumBodyLength(configuration.maximumBodyLength),
      m_easy(curl_easy_init(), curl_easy_cleanup),
      m_headers(nullptr, curl_slist_free_all),
      m_connectTo(nullptr, curl_slist_free_all),
      m_body(m_maximumBodyLength)
{
    setConnection(configuration);
    setRequest(proxy);
    setCallbacks();
}

size_t HTTPTransfer::onHeader(const char *line, size_t, size_t length, void *user)
{
    auto *transfer = static_cast<HTTPTransfer *>(user);
    transfer->m_lastActivity = Clock::now();
    transfer->m_headLength += length;
    const QByteArrayView text(line, static_cast<qsizetype>(length));
    if (transfer->m_headLength > maximumHeadLength) {
        transfer->m_error = NSURLErrorDataLengthExceedsMaximum;
    } else if (text == "\r\n" || text == "\n") {
        transfer->processHead();
    }
    return transfer->m_error ? 0 : length;
}

size_t HTTPTransfer::onBody(const char *bytes, size_t, size_t length, void *user)
{
    auto *transfer = static_cast<HTTPTransfer *>(user);
    transfer->m_lastActivity = Clock::now();
    transfer->m_error = transfer->m_body.append(bytes, length);
    return transfer->m_error ? 0 : length;
}

int HTTPTransfer::onProgress(void *user, std::int64_t, std::int64_t, std::int64_t, std::int64_t)
{
    auto *transfer = static_cast<HTTPTransfer *>(user);
    std::int64_t connecting = 0;
    for (const CURLINFO step : connectionPhases) {
        curl_off_t microseconds = 0;
        curl_easy_getinfo(transfer->handle(), step, &microseconds);
        connecting += microseconds;
    }
    if (connecting != transfer->m_connectTime) {
        transfer->m_connectTime = connecting;
        transfer->m_lastActivity = Clock::now();
    }
    return 0;
}

/// Called at the empty line that ends a head. Ignores interim heads, whose status is below 200: a
/// reply needs a final one, which libcurl does not check.
void HTTPTransfer::processHead()
{
    if (m_hasHead || status() < 200) {
        return;
    }
    m_hasHead = true;
    // libcurl 7 accepts other codings even if they are truncated; libcurl 8 refuses them.
    const QByteArray framing = field("Transfer-Encoding").toLower();
    const bool isFramed = framing.isEmpty() || framing == "chunked";
    if (!isFramed || !m_body.setCoding(field("Content-Encoding"))) {
        m_error = NSURLErrorCannotDecodeContentData;
    }
}

std::optional<URLErrorCode> HTTPTransfer::failure(int reported) const
{
    if (m_error) {
        return m_error;
    }
    if (reported != CURLE_OK) {
        return HTTPErrors::codeOf(handle(), reported);
    }
    if (!m_hasHead || isTruncated()) {
        return NSURLErrorNetworkConnectionLost;
    }
    return isBodiless() || m_body.isComplete() ? std::nullopt
                                               : std::optional(NSURLErrorCannotDecodeContentData);
}

/// By its status alone (RFC 9110, 6.4.1).
bool HTTPTransfer::isBodiless() const
{
    return status() == 204 || status() == 304;
}

/// Whether the connection ended the body, and without close_notify.
bool HTTPTransfer::isTruncated() const
{
    curl_off_t length = -1;
    curl_easy_getinfo(handle(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    const bool hasEnd = length >= 0 || !field("Transfer-Encoding").isEmpty() || isBodiless();
    return !hasEnd && !*m_closeNotify;
}

long HTTPTransfer::status() const
{
    long status = 0;
    curl_easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    return status;
}

/// The values of all fields of that name in the final head, joined (RFC 9110, 5.3).
QByteArray HTTPTransfer::field(const char *name) const
{
    QByteArrayList values;
    curl_header *found = nullptr;
    while (values.size() < maximumRepetition
           && curl_easy_header(handle(), name, static_cast<size_t>(values.size()), CURLH_HEADER, -1,
                               &found)
               == CURLHE_OK) {
        values.append(QByteArray(found->value).trimmed());
    }
    return values.join(", ");
}

std::optional<NSMutableURLRequest> HTTPTransfer::redirection() const
{
    const char *target = nullptr;
    curl_easy_getinfo(handle(), CURLINFO_REDIRECT_URL, &target);
    return target ? std::optional(NSMutableURLRequest::requestWithURL(target)) : std::nullopt;
}

/// libcurl must not follow redirects: it would follow them to any host and in loops, and would
/// repeat a "POST" or turn it into a "GET".
std::optional<URLErrorCode> HTTPTransfer::redirect(const NSMutableURLRequest &next)
{
    const QByteArrayView target = requestTarget(next.URL());
    if (m_requests.front().HTTPMethod() != "GET" || URLOrigin::of(next.URL()) != m_origin) {
        return NSURLErrorBadServerResponse;
    }
    const bool isLoop = std::ranges::any_of(m_requests, [&](const NSMutableURLRequest &sent) {
        return requestTarget(sent.URL()) == target;
    });
    if (isLoop || m_requests.size() > maximumRedirects) {
        return NSURLErrorHTTPTooManyRedirects;
    }
    m_requests.push_back(next);
    m_body = HTTPBody(m_maximumBodyLength);
    m_headLength = 0;
    m_hasHead = false;
    m_connectTime = 0;
    m_lastActivity = Clock::now();
    curl_easy_setopt(handle(), CURLOPT_URL, next.URL().constData());
    return std::nullopt;
}
