// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/HTTPProxy.h"
#include "platform/foundation/url/NSError.h"
#include "platform/foundation/url/NSMutableURLRequest.h"
#include "platform/foundation/url/NSURLSessionConfiguration.h"

#include <functional>
#include <memory>
#include <optional>

/// Runs HTTPS transfers concurrently on the thread that calls wait(). Its rules and limits are
/// those of NSURLSession.
class HTTPLoader {
public:
    /// The decoded body, or an error and an empty body.
    struct Result {
        QByteArray body;
        std::optional<URLErrorCode> error;
    };
    /// Called once for each transfer, from start(), wait() or cancelAll(). May call start().
    using Finished = std::function<void(Result)>;

    /// A loader from the module that the configuration names; null if it cannot be loaded.
    [[nodiscard]] static std::unique_ptr<HTTPLoader>
    load(const NSURLSessionConfiguration &configuration, const HTTPProxy &proxy);

    HTTPLoader() = default;
    /// Ends transfers without calling their `Finished`; see cancelAll().
    virtual ~HTTPLoader() = default;
    Q_DISABLE_COPY_MOVE(HTTPLoader)

    virtual void start(const NSMutableURLRequest &request, Finished finished) = 0;

    /// Ends every transfer with NSURLErrorCancelled.
    virtual void cancelAll() = 0;

    /// Sleeps until a socket is ready, a transfer times out or wake() is called, and advances the
    /// transfers.
    virtual void wait() = 0;

    /// Ends the current wait(), or the next one. The only operation that any thread may call.
    virtual void wake() = 0;
};

/// The function of the module that makes its loader. The caller owns the result.
using MakeHTTPLoader = HTTPLoader *(const NSURLSessionConfiguration &, const HTTPProxy &);
