// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/http/HTTPBody.h"
#include "platform/foundation/http/HTTPSecurity.h"
#include "platform/foundation/http/URLOrigin.h"
#include "platform/foundation/url/HTTPProxy.h"
#include "platform/foundation/url/NSMutableURLRequest.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

struct curl_slist;

/// One request and its reply, on a connection of its own.
class HTTPTransfer {
public:
    using Clock = std::chrono::steady_clock;

    /// The error of a request that must not be sent; nil for a valid request.
    [[nodiscard]] static std::optional<URLErrorCode> validate(const NSMutableURLRequest &request);

    HTTPTransfer(const NSMutableURLRequest &request, const NSURLSessionConfiguration &configuration,
                 const HTTPProxy &proxy);
    Q_DISABLE_COPY_MOVE(HTTPTransfer)

    /// libcurl's easy handle.
    [[nodiscard]] void *handle() const { return m_easy.get(); }

    /// When a phase of connecting last completed, or a byte last arrived.
    [[nodiscard]] Clock::time_point lastActivity() const { return m_lastActivity; }

    /// The error of an incomplete reply; nil for a complete one. `reported`: the CURLcode of the
    /// transfer's end.
    [[nodiscard]] std::optional<URLErrorCode> failure(int reported) const;

    /// The request to which a complete reply redirects; nil if it is the final answer.
    [[nodiscard]] std::optional<NSMutableURLRequest> redirection() const;

    /// Prepares the transfer to send `next`. An error if the redirect must not be followed.
    [[nodiscard]] std::optional<URLErrorCode> redirect(const NSMutableURLRequest &next);

    /// The decoded body of a complete reply. Once.
    [[nodiscard]] QByteArray takeBody() { return m_body.takeDecoded(); }

private:
    template <typename T>
    using Owned = std::unique_ptr<T, void (*)(T *)>;

    static size_t onHeader(const char *line, size_t, size_t length, void *user);
    static size_t onBody(const char *bytes, size_t, size_t length, void *user);
    static int onProgress(void *user, std::int64_t, std::int64_t, std::int64_t, std::int64_t);

    void setRequest(const HTTPProxy &proxy);
    void setConnection(const NSURLSessionConfiguration &configuration);
    void setCallbacks();
    void processHead();
    [[nodiscard]] bool isTruncated() const;
    [[nodiscard]] bool isBodiless() const;
    [[nodiscard]] long status() const;
    [[nodiscard]] QByteArray field(const char *name) const;

    /// The original request, then the redirected ones.
    std::vector<NSMutableURLRequest> m_requests;
    URLOrigin m_origin;
    qsizetype m_maximumBodyLength;
    HTTPSecurity::CloseNotify m_closeNotify;
    Owned<void> m_easy;
    Owned<curl_slist> m_headers;
    Owned<curl_slist> m_connectTo;

    Clock::time_point m_lastActivity = Clock::now();
    std::int64_t m_connectTime = 0;
    size_t m_headLength = 0;
    bool m_hasHead = false;
    HTTPBody m_body;
    std::optional<URLErrorCode> m_error;
};
