// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/HTTPBody.h"
#include "platform/foundation/url/HTTPProxy.h"
#include "platform/foundation/url/HTTPSecurity.h"
#include "platform/foundation/url/NSMutableURLRequest.h"
#include "platform/foundation/url/URLOrigin.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

struct curl_slist;

/// One request and what comes back for it, over a connection of its own.
class HTTPTransfer {
public:
    using Clock = std::chrono::steady_clock;

    /// Why the request cannot be sent at all; only others may be transferred.
    [[nodiscard]] static std::optional<URLErrorCode>
    objectionTo(const NSMutableURLRequest &request);

    HTTPTransfer(const NSMutableURLRequest &request, const NSURLSessionConfiguration &configuration,
                 const HTTPProxy &proxy);
    Q_DISABLE_COPY_MOVE(HTTPTransfer)

    /// libcurl's easy handle, for whoever runs the transfer.
    [[nodiscard]] void *handle() const { return m_easy.get(); }

    /// When a step of connecting was done or a byte of the reply came in last.
    [[nodiscard]] Clock::time_point lastActivity() const { return m_lastActivity; }

    /// Why there is no whole reply. `reported`: the CURLcode that the transfer ended with.
    [[nodiscard]] std::optional<URLErrorCode> failure(int reported) const;

    /// Asks where a whole reply says that the answer is; nil if it is the answer.
    [[nodiscard]] std::optional<NSMutableURLRequest> redirection() const;

    /// Makes ready to send `next` instead, or says why it must not be sent.
    [[nodiscard]] std::optional<URLErrorCode> redirect(const NSMutableURLRequest &next);

    /// The decoded body of a whole reply.
    [[nodiscard]] const QByteArray &body() const { return m_body.decoded(); }

private:
    template <typename T>
    using Owned = std::unique_ptr<T, void (*)(T *)>;

    static size_t onHeader(const char *line, size_t, size_t length, void *user);
    static size_t onBody(const char *bytes, size_t, size_t length, void *user);
    static int onProgress(void *user, std::int64_t, std::int64_t, std::int64_t, std::int64_t);

    void setRequest(const HTTPProxy &proxy);
    void setConnection(const NSURLSessionConfiguration &configuration);
    void setCallbacks();
    void takeHead();
    [[nodiscard]] bool isCutOff() const;
    [[nodiscard]] bool hasNoBody() const;
    [[nodiscard]] long status() const;
    [[nodiscard]] QByteArray field(const char *name) const;

    /// The request, and those that it was redirected to.
    std::vector<NSMutableURLRequest> m_asked;
    URLOrigin m_origin;
    qsizetype m_maximumBodyLength;
    HTTPSecurity::Farewell m_farewell;
    Owned<void> m_easy;
    Owned<curl_slist> m_headers;
    Owned<curl_slist> m_connectTo;

    Clock::time_point m_lastActivity = Clock::now();
    std::int64_t m_connecting = 0;
    size_t m_headLength = 0;
    bool m_hasHead = false;
    HTTPBody m_body;
    std::optional<URLErrorCode> m_refusal;
};
