// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/HTTPTransfer.h"

#include "platform/foundation/url/HTTPErrors.h"

#include <curl/curl.h>

#include <QByteArrayList>

#include <algorithm>
#include <array>

namespace {

constexpr size_t maximumRedirects = 20;
/// Of a field, in one head. Each look-up goes through the whole of it.
constexpr qsizetype maximumRepetition = 8;
constexpr size_t maximumHeadLength = size_t{256} * 1024;

constexpr std::array stepsOfConnecting{CURLINFO_NAMELOOKUP_TIME_T, CURLINFO_CONNECT_TIME_T,
                                       CURLINFO_APPCONNECT_TIME_T, CURLINFO_PRETRANSFER_TIME_T};

/// What a URL asks its host for: path and query.
QByteArrayView askedBy(QByteArrayView url)
{
    const qsizetype fragment = url.indexOf('#');
    const QByteArrayView text = fragment < 0 ? url : url.first(fragment);
    const auto *host = text.begin() + text.indexOf("://") + 3;
    const auto *path = std::find_if(host, text.end(), [](char c) { return c == '/' || c == '?'; });
    return path == text.end() ? QByteArrayView("/") : QByteArrayView(path, text.end());
}

} // namespace

std::optional<URLErrorCode> HTTPTransfer::objectionTo(const NSMutableURLRequest &request)
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
    : m_asked{request},
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

void HTTPTransfer::setConnection(const NSURLSessionConfiguration &configuration)
{
    CURL *easy = handle();
    HTTPSecurity::apply(easy, configuration, &m_farewell);
    if (!configuration.connectTo.isEmpty()) {
        const QByteArray everything = "::" + configuration.connectTo.toLatin1();
        m_connectTo.reset(curl_slist_append(nullptr, everything.constData()));
        curl_easy_setopt(easy, CURLOPT_CONNECT_TO, m_connectTo.get());
    }
    curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "https");
    // Over a connection that was open before, an unanswered request would be sent again, and what
    // the server had left there would be taken for the answer.
    curl_easy_setopt(easy, CURLOPT_FRESH_CONNECT, 1L);
    curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // A name look-up that hangs must not hold up the end of the session.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
}

void HTTPTransfer::setRequest(const HTTPProxy &proxy)
{
    CURL *easy = handle();
    const QByteArray coding = QByteArray("Accept-Encoding: ") + HTTPBody::offered;
    m_headers.reset(curl_slist_append(nullptr, coding.constData()));
    if (m_asked.front().HTTPMethod() == "POST") {
        curl_slist_append(m_headers.get(), "Content-Type:");
        curl_easy_setopt(easy, CURLOPT_POST, 1L);
        curl_easy_setopt(easy, CURLOPT_POSTFIELDS, "");
        curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE, 0L);
    }
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, m_headers.get());
    curl_easy_setopt(easy, CURLOPT_URL, m_asked.front().URL().constData());
    // Even if there are none: libcurl reads the environment for what it is not told.
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

size_t HTTPTransfer::onHeader(const char *line, size_t, size_t length, void *user)
{
    auto *transfer = static_cast<HTTPTransfer *>(user);
    transfer->m_lastActivity = Clock::now();
    transfer->m_headLength += length;
    const QByteArrayView text(line, static_cast<qsizetype>(length));
    if (transfer->m_headLength > maximumHeadLength) {
        transfer->m_refusal = NSURLErrorDataLengthExceedsMaximum;
    } else if (text == "\r\n" || text == "\n") {
        transfer->takeHead();
    }
    return transfer->m_refusal ? 0 : length;
}

size_t HTTPTransfer::onBody(const char *bytes, size_t, size_t length, void *user)
{
    auto *transfer = static_cast<HTTPTransfer *>(user);
    transfer->m_lastActivity = Clock::now();
    transfer->m_refusal = transfer->m_body.append(bytes, length);
    return transfer->m_refusal ? 0 : length;
}

int HTTPTransfer::onProgress(void *user, std::int64_t, std::int64_t, std::int64_t, std::int64_t)
{
    auto *transfer = static_cast<HTTPTransfer *>(user);
    std::int64_t connecting = 0;
    for (const CURLINFO step : stepsOfConnecting) {
        curl_off_t microseconds = 0;
        curl_easy_getinfo(transfer->handle(), step, &microseconds);
        connecting += microseconds;
    }
    if (connecting != transfer->m_connecting) {
        transfer->m_connecting = connecting;
        transfer->m_lastActivity = Clock::now();
    }
    return 0;
}

/// Called at the empty line that ends a head. Of an interim one, with a status below 200, nothing
/// counts; without the final one there is no reply, which libcurl does not notice.
void HTTPTransfer::takeHead()
{
    if (m_hasHead || status() < 200) {
        return;
    }
    m_hasHead = true;
    // libcurl 7 decodes any other, however much of it is missing; libcurl 8 refuses it like this.
    const QByteArray framing = field("Transfer-Encoding").toLower();
    const bool isFramed = framing.isEmpty() || framing == "chunked";
    if (!isFramed || !m_body.setCoding(field("Content-Encoding"))) {
        m_refusal = NSURLErrorCannotDecodeContentData;
    }
}

std::optional<URLErrorCode> HTTPTransfer::failure(int reported) const
{
    if (m_refusal) {
        return m_refusal;
    }
    if (reported != CURLE_OK) {
        return HTTPErrors::codeOf(handle(), reported);
    }
    if (!m_hasHead || isCutOff()) {
        return NSURLErrorNetworkConnectionLost;
    }
    return hasNoBody() || m_body.isWhole() ? std::nullopt
                                           : std::optional(NSURLErrorCannotDecodeContentData);
}

/// Whatever its head says of one.
bool HTTPTransfer::hasNoBody() const
{
    return status() == 204 || status() == 304;
}

/// A body that only the end of its connection ends, and that end is none in good order.
bool HTTPTransfer::isCutOff() const
{
    curl_off_t length = -1;
    curl_easy_getinfo(handle(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    const bool hasEnd = length >= 0 || !field("Transfer-Encoding").isEmpty() || hasNoBody();
    return !hasEnd && !*m_farewell;
}

long HTTPTransfer::status() const
{
    long status = 0;
    curl_easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    return status;
}

/// The values of the final head's fields of that name.
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

/// Redirects are followed here and not by libcurl, which would go to any host, ask the same thing
/// over and over and, for a "POST", send it again or turn it into a "GET".
std::optional<URLErrorCode> HTTPTransfer::redirect(const NSMutableURLRequest &next)
{
    const QByteArrayView target = askedBy(next.URL());
    if (m_asked.front().HTTPMethod() != "GET" || URLOrigin::of(next.URL()) != m_origin) {
        return NSURLErrorBadServerResponse;
    }
    const bool isAskedAgain = std::ranges::any_of(
        m_asked, [&](const NSMutableURLRequest &asked) { return askedBy(asked.URL()) == target; });
    if (isAskedAgain || m_asked.size() > maximumRedirects) {
        return NSURLErrorHTTPTooManyRedirects;
    }
    m_asked.push_back(next);
    m_body = HTTPBody(m_maximumBodyLength);
    m_hasHead = false;
    m_connecting = 0;
    m_lastActivity = Clock::now();
    curl_easy_setopt(handle(), CURLOPT_URL, next.URL().constData());
    return std::nullopt;
}
