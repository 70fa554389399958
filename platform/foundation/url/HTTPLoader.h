// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"
#include "platform/foundation/url/NSMutableURLRequest.h"
#include "platform/foundation/url/NSURLSessionConfiguration.h"

#include <functional>
#include <memory>
#include <optional>

/// Runs HTTPS transfers concurrently on the thread that calls wait(). It may be made on another
/// thread, and reads the environment only when it is made. Its rules and limits are those of
/// NSURLSession.
class HTTPLoader {
public:
    /// The decoded body, or an error and an empty body.
    struct Result {
        QByteArray body;
        std::optional<URLErrorCode> error;
    };
    /// Called once for each transfer, from start(), wait() or cancelAll(). May call start().
    using Finished = std::function<void(const Result &)>;

    explicit HTTPLoader(const NSURLSessionConfiguration &configuration);
    /// Ends transfers without calling their `Finished`; see cancelAll().
    ~HTTPLoader();
    Q_DISABLE_COPY_MOVE(HTTPLoader)

    void start(const NSMutableURLRequest &request, Finished finished);

    /// Ends every transfer with NSURLErrorCancelled.
    void cancelAll();

    /// Sleeps until a socket is ready, a transfer times out or wake() is called, and advances the
    /// transfers.
    void wait();

    /// Ends the current wait(), or the next one. The only operation that any thread may call.
    void wake();

private:
    struct State;
    std::unique_ptr<State> m_state;
};
