// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/HTTPLoader.h"

#include "platform/foundation/URLOrigin.h"

#include <curl/curl.h>

#include <QFile>

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int maximumRedirects = 20;
constexpr size_t maximumHeaderLength = size_t(256) * 1024;
constexpr char systemAuthorities[] = "/etc/ssl/certs";

/// CURLE_TOO_LARGE, which the library has a name for since 8.6.
constexpr long tooLarge = 100;

struct ErrorRow {
    long reported;
    NSURLErrorCode code;
};

/// By CURLcode. Anything that is not listed is NSURLErrorUnknown.
constexpr std::array errorTable{
    ErrorRow{CURLE_URL_MALFORMAT, NSURLErrorBadURL},
    ErrorRow{CURLE_COULDNT_RESOLVE_HOST, NSURLErrorCannotFindHost},
    ErrorRow{CURLE_COULDNT_RESOLVE_PROXY, NSURLErrorCannotFindHost},
    ErrorRow{CURLE_COULDNT_CONNECT, NSURLErrorCannotConnectToHost},
    ErrorRow{CURLE_PROXY, NSURLErrorCannotConnectToHost},
    ErrorRow{CURLE_OPERATION_TIMEDOUT, NSURLErrorTimedOut},
    ErrorRow{CURLE_GOT_NOTHING, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_PARTIAL_FILE, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_RECV_ERROR, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_SEND_ERROR, NSURLErrorNetworkConnectionLost},
    ErrorRow{CURLE_BAD_CONTENT_ENCODING, NSURLErrorCannotDecodeContentData},
    ErrorRow{CURLE_WEIRD_SERVER_REPLY, NSURLErrorBadServerResponse},
    // A first line that is no HTTP.
    ErrorRow{CURLE_UNSUPPORTED_PROTOCOL, NSURLErrorBadServerResponse},
    ErrorRow{tooLarge, NSURLErrorDataLengthExceedsMaximum},
    ErrorRow{CURLE_SSL_CONNECT_ERROR, NSURLErrorSecureConnectionFailed},
    ErrorRow{CURLE_SSL_CACERT_BADFILE, NSURLErrorSecureConnectionFailed},
};

/// By OpenSSL's verification result, after CURLE_PEER_FAILED_VERIFICATION. Anything that is not
/// listed (a certificate for another host, above all) is NSURLErrorServerCertificateUntrusted.
constexpr std::array certificateTable{
    ErrorRow{9, NSURLErrorServerCertificateNotYetValid},
    ErrorRow{10, NSURLErrorServerCertificateHasBadDate},
    ErrorRow{18, NSURLErrorServerCertificateHasUnknownRoot},
    ErrorRow{19, NSURLErrorServerCertificateHasUnknownRoot},
    ErrorRow{20, NSURLErrorServerCertificateHasUnknownRoot},
    ErrorRow{21, NSURLErrorServerCertificateHasUnknownRoot},
};

template <size_t size>
NSURLErrorCode lookUp(const std::array<ErrorRow, size> &table, long reported,
                      NSURLErrorCode otherwise)
{
    const auto *row = std::find_if(table.begin(), table.end(),
                                   [&](const ErrorRow &r) { return r.reported == reported; });
    return row == table.end() ? otherwise : row->code;
}

NSURLErrorCode errorOf(CURL *easy, CURLcode reported)
{
    if (reported != CURLE_PEER_FAILED_VERIFICATION) {
        return lookUp(errorTable, reported, NSURLErrorUnknown);
    }
    long verification = 0;
    curl_easy_getinfo(easy, CURLINFO_SSL_VERIFYRESULT, &verification);
    return lookUp(certificateTable, verification, NSURLErrorServerCertificateUntrusted);
}

struct Freer {
    void operator()(CURL *easy) const { curl_easy_cleanup(easy); }
    void operator()(curl_slist *list) const { curl_slist_free_all(list); }
};
template <typename T>
using Owned = std::unique_ptr<T, Freer>;

struct Transfer {
    Transfer(NSMutableURLRequest request_, HTTPLoader::Finished finished_)
        : request(std::move(request_)), finished(std::move(finished_))
    {
    }

    NSMutableURLRequest request;
    URLOrigin origin = URLOrigin::of(request.URL()).value_or(URLOrigin());
    HTTPLoader::Finished finished;
    Owned<CURL> easy{curl_easy_init()};
    Owned<curl_slist> headers;
    Owned<curl_slist> connectTo;
    qsizetype maximumBodyLength = 0;

    QByteArray body;
    size_t headerLength = 0;
    curl_off_t received = 0;
    int redirects = 0;
    std::optional<NSURLErrorCode> refusal;
    Clock::time_point lastActivity = Clock::now();
};

size_t onHeader(const char *, size_t, size_t length, void *user)
{
    auto *transfer = static_cast<Transfer *>(user);
    transfer->lastActivity = Clock::now();
    transfer->headerLength += length;
    if (transfer->headerLength > maximumHeaderLength) {
        transfer->refusal = NSURLErrorDataLengthExceedsMaximum;
        return 0;
    }
    return length;
}

size_t onBody(const char *bytes, size_t, size_t length, void *user)
{
    auto *transfer = static_cast<Transfer *>(user);
    if (qsizetype(length) > transfer->maximumBodyLength - transfer->body.size()) {
        transfer->refusal = NSURLErrorDataLengthExceedsMaximum;
        return 0;
    }
    transfer->body.append(bytes, qsizetype(length));
    return length;
}

/// Bytes as they come in, before decompression: a decoder may hold its output back for long.
int onProgress(void *user, curl_off_t, curl_off_t received, curl_off_t, curl_off_t)
{
    auto *transfer = static_cast<Transfer *>(user);
    if (received != transfer->received) {
        transfer->received = received;
        transfer->lastActivity = Clock::now();
    }
    return 0;
}

void setTrust(CURL *easy, const NSURLSessionConfiguration &configuration)
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
}

void setRequest(Transfer &transfer)
{
    CURL *easy = transfer.easy.get();
    if (transfer.request.HTTPMethod() == "POST") {
        transfer.headers.reset(curl_slist_append(nullptr, "Content-Type:"));
        curl_easy_setopt(easy, CURLOPT_POST, 1L);
        curl_easy_setopt(easy, CURLOPT_POSTFIELDS, "");
        curl_easy_setopt(easy, CURLOPT_POSTFIELDSIZE, 0L);
        curl_easy_setopt(easy, CURLOPT_HTTPHEADER, transfer.headers.get());
    }
    // Over a connection that was open before, an unanswered request would be sent again.
    curl_easy_setopt(easy, CURLOPT_FRESH_CONNECT, transfer.request.isRepeatable() ? 0L : 1L);
    curl_easy_setopt(easy, CURLOPT_URL, transfer.request.URL().constData());
    if (transfer.origin.isLoopback()) {
        curl_easy_setopt(easy, CURLOPT_NOPROXY, "*");
    }
}

void setConnection(Transfer &transfer, const NSURLSessionConfiguration &configuration)
{
    CURL *easy = transfer.easy.get();
    if (!configuration.connectTo.isEmpty()) {
        const QByteArray everything = "::" + configuration.connectTo.toLatin1();
        transfer.connectTo.reset(curl_slist_append(nullptr, everything.constData()));
        curl_easy_setopt(easy, CURLOPT_CONNECT_TO, transfer.connectTo.get());
    }
    curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "https");
    curl_easy_setopt(easy, CURLOPT_ACCEPT_ENCODING, "");
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // A name look-up that hangs must not hold up the end of the session.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
}

void setCallbacks(Transfer &transfer)
{
    CURL *easy = transfer.easy.get();
    curl_easy_setopt(easy, CURLOPT_PRIVATE, &transfer);
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, onHeader);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, onBody);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_XFERINFOFUNCTION, onProgress);
    curl_easy_setopt(easy, CURLOPT_XFERINFODATA, &transfer);
    curl_easy_setopt(easy, CURLOPT_NOPROGRESS, 0L);
}

/// Why a request cannot be sent at all.
std::optional<NSURLErrorCode> objectionTo(const NSMutableURLRequest &request)
{
    const std::optional<URLOrigin> origin = URLOrigin::of(request.URL());
    if (!origin) {
        return NSURLErrorBadURL;
    }
    const QByteArray &method = request.HTTPMethod();
    const bool supported = origin->scheme == "https" && (method == "GET" || method == "POST");
    return supported ? std::nullopt : std::optional(NSURLErrorUnsupportedURL);
}

} // namespace

struct HTTPLoader::State {
    NSURLSessionConfiguration configuration;
    CURLM *multi = nullptr;
    std::vector<std::unique_ptr<Transfer>> transfers;

    std::unique_ptr<Transfer> take(const Transfer *transfer);
    void finish(const Transfer *transfer, std::optional<NSURLErrorCode> error);
    void ended(Transfer &transfer, CURLcode result);
    void redirect(Transfer &transfer, const char *location);
    void finishTimedOut();
    [[nodiscard]] int pollTimeout() const;
};

std::unique_ptr<Transfer> HTTPLoader::State::take(const Transfer *transfer)
{
    const auto place = std::find_if(transfers.begin(), transfers.end(),
                                    [&](const auto &owned) { return owned.get() == transfer; });
    std::unique_ptr<Transfer> taken = std::move(*place);
    transfers.erase(place);
    curl_multi_remove_handle(multi, taken->easy.get());
    return taken;
}

void HTTPLoader::State::finish(const Transfer *transfer, std::optional<NSURLErrorCode> error)
{
    const std::unique_ptr<Transfer> taken = take(transfer);
    taken->finished({error ? QByteArray() : taken->body, error});
}

void HTTPLoader::State::ended(Transfer &transfer, CURLcode result)
{
    char *location = nullptr;
    curl_easy_getinfo(transfer.easy.get(), CURLINFO_REDIRECT_URL, &location);
    if (result != CURLE_OK) {
        finish(&transfer, transfer.refusal.value_or(errorOf(transfer.easy.get(), result)));
    } else if (location) {
        redirect(transfer, location);
    } else {
        finish(&transfer, std::nullopt);
    }
}

/// Redirects are followed here and not by the library, which would go to any host and, for a
/// "POST", send it again or turn it into a "GET".
void HTTPLoader::State::redirect(Transfer &transfer, const char *location)
{
    CURL *easy = transfer.easy.get();
    if (transfer.request.HTTPMethod() != "GET" || URLOrigin::of(location) != transfer.origin) {
        finish(&transfer, NSURLErrorBadServerResponse);
    } else if (++transfer.redirects > maximumRedirects) {
        finish(&transfer, NSURLErrorHTTPTooManyRedirects);
    } else {
        const QByteArray target(location);
        curl_multi_remove_handle(multi, easy);
        transfer.body.clear();
        transfer.received = 0;
        transfer.lastActivity = Clock::now();
        curl_easy_setopt(easy, CURLOPT_URL, target.constData());
        curl_multi_add_handle(multi, easy);
    }
}

void HTTPLoader::State::finishTimedOut()
{
    const auto expired = Clock::now() - configuration.timeoutIntervalForRequest;
    std::vector<const Transfer *> idle;
    for (const auto &transfer : transfers) {
        if (transfer->lastActivity <= expired) {
            idle.push_back(transfer.get());
        }
    }
    for (const Transfer *transfer : idle) {
        finish(transfer, NSURLErrorTimedOut);
    }
}

/// Milliseconds until the next time-out; without transfers the thread sleeps on.
int HTTPLoader::State::pollTimeout() const
{
    using std::chrono::milliseconds;
    auto next = Clock::now() + std::chrono::hours(24);
    for (const auto &transfer : transfers) {
        next = std::min(next, transfer->lastActivity + configuration.timeoutIntervalForRequest);
    }
    const auto wait = std::chrono::ceil<milliseconds>(next - Clock::now());
    return int(std::max(wait, milliseconds(0)).count());
}

HTTPLoader::HTTPLoader(const NSURLSessionConfiguration &configuration)
    : m_state(std::make_unique<State>())
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
    m_state->configuration = configuration;
    m_state->multi = curl_multi_init();
}

HTTPLoader::~HTTPLoader()
{
    while (!m_state->transfers.empty()) {
        m_state->take(m_state->transfers.back().get());
    }
    curl_multi_cleanup(m_state->multi);
    curl_global_cleanup();
}

void HTTPLoader::start(const NSMutableURLRequest &request, Finished finished)
{
    if (const std::optional<NSURLErrorCode> objection = objectionTo(request)) {
        finished({{}, objection});
        return;
    }
    auto transfer = std::make_unique<Transfer>(request, std::move(finished));
    transfer->maximumBodyLength = m_state->configuration.maximumBodyLength;
    setTrust(transfer->easy.get(), m_state->configuration);
    setConnection(*transfer, m_state->configuration);
    setRequest(*transfer);
    setCallbacks(*transfer);
    curl_multi_add_handle(m_state->multi, transfer->easy.get());
    m_state->transfers.push_back(std::move(transfer));
}

void HTTPLoader::cancelAll()
{
    while (!m_state->transfers.empty()) {
        m_state->finish(m_state->transfers.back().get(), NSURLErrorCancelled);
    }
}

void HTTPLoader::wait()
{
    curl_multi_poll(m_state->multi, nullptr, 0, m_state->pollTimeout(), nullptr);
    int running = 0;
    curl_multi_perform(m_state->multi, &running);
    int queued = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_state->multi, &queued)) {
        Transfer *transfer = nullptr;
        curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &transfer);
        m_state->ended(*transfer, message->data.result);
    }
    m_state->finishTimedOut();
}

void HTTPLoader::wake()
{
    curl_multi_wakeup(m_state->multi);
}
