// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLSessionConfiguration.h"
#include "platform/foundation/url/NSURLSessionDataTask.h"
#include "platform/foundation/url/SessionThread.h"

/// An asynchronous HTTPS client on one thread of its own, asleep while nothing is under way.
///
/// HTTPS only, TLS 1.2 at least, HTTP/1.1. Every request goes over a connection of its own, and so
/// exactly once. A redirect is followed for "GET" and only to the same host and port, at most 20 in
/// a row and to no URL that was asked before; any other redirect is an error. Sent header fields
/// are Host, Accept and Accept-Encoding, and for "POST" a Content-Length of 0. No cookies, no
/// cache, no credentials. Proxy variables of the environment are honoured, except for loopback
/// addresses; they are read when the session is made.
///
/// A body is delivered only when the reply ended as it announced. One truncation cannot be seen
/// here: a body that was cut before it was sent with its shorter length, unless it is compressed.
/// What decodes the body has to notice.
class NSURLSession {
public:
    explicit NSURLSession(const NSURLSessionConfiguration &configuration);

    /// Completes every task under way with NSURLErrorCancelled, on the session's thread, and
    /// returns when the last completion has returned. If that takes more than a second, the thread
    /// is left behind, and what has not completed never does. Never call it from a completion.
    /// A session that was installed as the shared one is uninstalled at the end.
    ~NSURLSession();

    Q_DISABLE_COPY_MOVE(NSURLSession)

    /// The session that the application has installed; null before and after. Any thread.
    [[nodiscard]] static NSURLSession *sharedSession();

    /// Installs `session` as the shared one; the application does this once as it starts. The
    /// session stays its maker's, who destroys it before the application object.
    static void setSharedSession(NSURLSession *session);

    /// Makes a task that waits for its `resume()`. `completion` must not be empty; it is called
    /// exactly once after `resume()`, on the session's own thread (on the resuming thread, with
    /// NSURLErrorCancelled, if the session is gone by then), and must not block for long: every
    /// other task waits for it.
    /// Errors are of the domain NSURLErrorDomain, their codes those of URLErrorCode.
    [[nodiscard]] std::shared_ptr<NSURLSessionDataTask>
    dataTaskWithRequest(const NSMutableURLRequest &request,
                        NSURLSessionDataTask::Completion completion);

private:
    std::shared_ptr<TaskQueue> m_queue;
    SessionThread m_thread;
};
