// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/HTTPLoader.h"

#include "platform/foundation/url/HTTPTransfer.h"

#include <curl/curl.h>

#include <algorithm>
#include <vector>

namespace {

using Clock = HTTPTransfer::Clock;

struct RunningTransfer {
    HTTPTransfer transfer;
    HTTPLoader::Finished finished;
};

} // namespace

struct HTTPLoader::State {
    NSURLSessionConfiguration configuration;
    HTTPProxy proxy = HTTPProxy::fromEnvironment();
    CURLM *multi = nullptr;
    std::vector<std::unique_ptr<RunningTransfer>> all;

    std::unique_ptr<RunningTransfer> detach(const RunningTransfer *running);
    void finish(const RunningTransfer *running, std::optional<URLErrorCode> error);
    void handleEnd(RunningTransfer &running, CURLcode result);
    void redirect(RunningTransfer &running, const NSMutableURLRequest &next);
    void finishTimedOut();
    [[nodiscard]] int pollTimeout() const;
};

std::unique_ptr<RunningTransfer> HTTPLoader::State::detach(const RunningTransfer *running)
{
    const auto place = std::find_if(all.begin(), all.end(),
                                    [&](const auto &owned) { return owned.get() == running; });
    std::unique_ptr<RunningTransfer> detached = std::move(*place);
    all.erase(place);
    curl_multi_remove_handle(multi, detached->transfer.handle());
    return detached;
}

void HTTPLoader::State::finish(const RunningTransfer *running, std::optional<URLErrorCode> error)
{
    const std::unique_ptr<RunningTransfer> detached = detach(running);
    detached->finished({error ? QByteArray() : detached->transfer.body(), error});
}

void HTTPLoader::State::handleEnd(RunningTransfer &running, CURLcode result)
{
    if (const auto error = running.transfer.failure(result)) {
        finish(&running, error);
    } else if (const auto next = running.transfer.redirection()) {
        redirect(running, *next);
    } else {
        finish(&running, std::nullopt);
    }
}

void HTTPLoader::State::redirect(RunningTransfer &running, const NSMutableURLRequest &next)
{
    if (const auto error = running.transfer.redirect(next)) {
        finish(&running, error);
    } else {
        curl_multi_remove_handle(multi, running.transfer.handle());
        curl_multi_add_handle(multi, running.transfer.handle());
    }
}

void HTTPLoader::State::finishTimedOut()
{
    const auto expired = Clock::now() - configuration.timeoutIntervalForRequest;
    std::vector<const RunningTransfer *> idle;
    for (const auto &running : all) {
        if (running->transfer.lastActivity() <= expired) {
            idle.push_back(running.get());
        }
    }
    for (const RunningTransfer *running : idle) {
        finish(running, NSURLErrorTimedOut);
    }
}

/// Milliseconds until the next time-out; without transfers a day.
int HTTPLoader::State::pollTimeout() const
{
    using std::chrono::milliseconds;
    auto next = Clock::now() + std::chrono::hours(24);
    for (const auto &running : all) {
        next = std::min(next,
                        running->transfer.lastActivity() + configuration.timeoutIntervalForRequest);
    }
    const auto wait = std::chrono::ceil<milliseconds>(next - Clock::now());
    return static_cast<int>(std::max(wait, milliseconds(0)).count());
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
    while (!m_state->all.empty()) {
        m_state->detach(m_state->all.back().get());
    }
    curl_multi_cleanup(m_state->multi);
    curl_global_cleanup();
}

void HTTPLoader::start(const NSMutableURLRequest &request, Finished finished)
{
    if (const auto error = HTTPTransfer::validate(request)) {
        finished({{}, error});
        return;
    }
    const auto &[configuration, proxy, multi, all] = *m_state;
    const std::unique_ptr<RunningTransfer> &running = m_state->all.emplace_back(
        new RunningTransfer{{request, configuration, proxy}, std::move(finished)});
    curl_easy_setopt(running->transfer.handle(), CURLOPT_PRIVATE, running.get());
    curl_multi_add_handle(multi, running->transfer.handle());
}

void HTTPLoader::cancelAll()
{
    while (!m_state->all.empty()) {
        m_state->finish(m_state->all.back().get(), NSURLErrorCancelled);
    }
}

void HTTPLoader::wait()
{
    curl_multi_poll(m_state->multi, nullptr, 0, m_state->pollTimeout(), nullptr);
    int active = 0;
    curl_multi_perform(m_state->multi, &active);
    int queued = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_state->multi, &queued)) {
        RunningTransfer *running = nullptr;
        curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &running);
        m_state->handleEnd(*running, message->data.result);
    }
    m_state->finishTimedOut();
}

void HTTPLoader::wake()
{
    curl_multi_wakeup(m_state->multi);
}
