// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/HTTPTransfer.h"
#include "platform/foundation/url/HTTPLoader.h"

#include <curl/curl.h>

#include <algorithm>
#include <type_traits>
#include <vector>

namespace {

using Clock = HTTPTransfer::Clock;

struct RunningTransfer {
    HTTPTransfer transfer;
    HTTPLoader::Finished finished;
};

/// libcurl's multi interface.
class CurlLoader final : public HTTPLoader {
public:
    CurlLoader(const NSURLSessionConfiguration &configuration, const HTTPProxy &proxy);
    ~CurlLoader() override;
    Q_DISABLE_COPY_MOVE(CurlLoader)

    void start(const NSMutableURLRequest &request, Finished finished) override;
    void cancelAll() override;
    void wait() override;
    void wake() override;

private:
    std::unique_ptr<RunningTransfer> detach(const RunningTransfer *running);
    void finish(const RunningTransfer *running, std::optional<URLErrorCode> error);
    void handleEnd(RunningTransfer &running, CURLcode result);
    void redirect(RunningTransfer &running, const NSMutableURLRequest &next);
    void finishTimedOut();
    [[nodiscard]] int pollTimeout() const;

    NSURLSessionConfiguration m_configuration;
    HTTPProxy m_proxy;
    CURLM *m_multi = nullptr;
    std::vector<std::unique_ptr<RunningTransfer>> m_all;
};

std::unique_ptr<RunningTransfer> CurlLoader::detach(const RunningTransfer *running)
{
    const auto place = std::find_if(m_all.begin(), m_all.end(),
                                    [&](const auto &owned) { return owned.get() == running; });
    std::unique_ptr<RunningTransfer> detached = std::move(*place);
    m_all.erase(place);
    curl_multi_remove_handle(m_multi, detached->transfer.handle());
    return detached;
}

void CurlLoader::finish(const RunningTransfer *running, std::optional<URLErrorCode> error)
{
    const std::unique_ptr<RunningTransfer> detached = detach(running);
    detached->finished({error ? QByteArray() : detached->transfer.takeBody(), error});
}

void CurlLoader::handleEnd(RunningTransfer &running, CURLcode result)
{
    if (const auto error = running.transfer.failure(result)) {
        finish(&running, error);
    } else if (const auto next = running.transfer.redirection()) {
        redirect(running, *next);
    } else {
        finish(&running, std::nullopt);
    }
}

void CurlLoader::redirect(RunningTransfer &running, const NSMutableURLRequest &next)
{
    if (const auto error = running.transfer.redirect(next)) {
        finish(&running, error);
    } else {
        curl_multi_remove_handle(m_multi, running.transfer.handle());
        curl_multi_add_handle(m_multi, running.transfer.handle());
    }
}

void CurlLoader::finishTimedOut()
{
    const auto expired = Clock::now() - m_configuration.timeoutIntervalForRequest;
    std::vector<const RunningTransfer *> idle;
    for (const auto &running : m_all) {
        if (running->transfer.lastActivity() <= expired) {
            idle.push_back(running.get());
        }
    }
    for (const RunningTransfer *running : idle) {
        finish(running, NSURLErrorTimedOut);
    }
}

/// Milliseconds until the next time-out; without transfers a day.
int CurlLoader::pollTimeout() const
{
    using std::chrono::milliseconds;
    auto next = Clock::now() + std::chrono::hours(24);
    for (const auto &running : m_all) {
        next = std::min(
            next, running->transfer.lastActivity() + m_configuration.timeoutIntervalForRequest);
    }
    const auto wait = std::chrono::ceil<milliseconds>(next - Clock::now());
    return static_cast<int>(std::max(wait, milliseconds(0)).count());
}

CurlLoader::CurlLoader(const NSURLSessionConfiguration &configuration, const HTTPProxy &proxy)
    : m_configuration(configuration), m_proxy(proxy)
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
    m_multi = curl_multi_init();
}

CurlLoader::~CurlLoader()
{
    while (!m_all.empty()) {
        detach(m_all.back().get());
    }
    curl_multi_cleanup(m_multi);
    curl_global_cleanup();
}

void CurlLoader::start(const NSMutableURLRequest &request, Finished finished)
{
    if (const auto error = HTTPTransfer::validate(request)) {
        finished({{}, error});
        return;
    }
    const std::unique_ptr<RunningTransfer> &running = m_all.emplace_back(
        new RunningTransfer{{request, m_configuration, m_proxy}, std::move(finished)});
    curl_easy_setopt(running->transfer.handle(), CURLOPT_PRIVATE, running.get());
    curl_multi_add_handle(m_multi, running->transfer.handle());
}

void CurlLoader::cancelAll()
{
    while (!m_all.empty()) {
        finish(m_all.back().get(), NSURLErrorCancelled);
    }
}

void CurlLoader::wait()
{
    curl_multi_poll(m_multi, nullptr, 0, pollTimeout(), nullptr);
    int active = 0;
    curl_multi_perform(m_multi, &active);
    int queued = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi, &queued)) {
        RunningTransfer *running = nullptr;
        curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &running);
        handleEnd(*running, message->data.result);
    }
    finishTimedOut();
}

void CurlLoader::wake()
{
    curl_multi_wakeup(m_multi);
}

} // namespace

extern "C" Q_DECL_EXPORT HTTPLoader *makeHTTPLoader(const NSURLSessionConfiguration &configuration,
                                                    const HTTPProxy &proxy)
{
    return new CurlLoader(configuration, proxy);
}
static_assert(std::is_same_v<decltype(makeHTTPLoader), MakeHTTPLoader>);
