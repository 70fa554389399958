// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"
#include "platform/foundation/url/NSMutableURLRequest.h"
#include "platform/foundation/url/NSURLSessionConfiguration.h"

#include <functional>
#include <memory>
#include <optional>

/// Any number of HTTPS transfers at a time, on one thread: the one that calls wait(). It may be
/// made on another, and reads the environment there and then only.
/// Rules and limits are those of NSURLSession.
class HTTPLoader {
public:
    /// The decoded body, or nothing of it and why.
    struct Result {
        QByteArray body;
        std::optional<URLErrorCode> error;
    };
    /// Called once for each transfer, from start(), wait() or cancelAll(). May call start().
    using Finished = std::function<void(const Result &)>;

    explicit HTTPLoader(const NSURLSessionConfiguration &configuration);
    /// Transfers under way are dropped without a word; see cancelAll().
    ~HTTPLoader();
    Q_DISABLE_COPY_MOVE(HTTPLoader)

    void start(const NSMutableURLRequest &request, Finished finished);

    /// Ends every transfer with NSURLErrorCancelled.
    void cancelAll();

    /// Sleeps until there is something to do, at the latest until wake(), and does it.
    void wait();

    /// Ends the current wait(), or else the next one. The only operation for any thread.
    void wake();

private:
    struct State;
    std::unique_ptr<State> m_state;
};
