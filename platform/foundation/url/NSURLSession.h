// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLSessionConfiguration.h"
#include "platform/foundation/url/NSURLSessionDataTask.h"
#include "platform/foundation/url/SessionThread.h"

/// An asynchronous HTTPS client on one thread of its own, asleep while nothing is under way.
///
/// HTTPS only, TLS 1.2 or later, HTTP/1.1 (RFC 9110, RFC 9112). Every request uses a new connection
/// and so is sent exactly once. It follows redirects of "GET" to the same host and port, at most 20
/// in a row and never twice to one URL; any other redirect is an error. It sends the header fields
/// Host, Accept and Accept-Encoding, and for "POST" a Content-Length of 0; no cookies, no
/// credentials, and it keeps no cache. It reads the proxy variables of the environment when it is
/// made, and uses no proxy for loopback addresses.
///
/// It delivers a body only if the reply is complete by its own framing. It cannot detect that a
/// server truncated a body before it sent the shorter length, unless the body is compressed; the
/// body's decoder has to.
class NSURLSession {
public:
    explicit NSURLSession(const NSURLSessionConfiguration &configuration);

    /// Completes every running task with NSURLErrorCancelled, on the session's thread, and returns
    /// after the last completion. If that takes more than a second, the thread is detached and the
    /// remaining tasks never complete. Never destroy a session in a completion. The shared session
    /// becomes null if it is this one.
    ~NSURLSession();

    Q_DISABLE_COPY_MOVE(NSURLSession)

    /// The session that the application has installed; null before and after. Any thread.
    [[nodiscard]] static NSURLSession *sharedSession();

    /// Installs `session` as the shared one, once at the start of the application. The caller keeps
    /// the session and destroys it before the application object.
    static void setSharedSession(NSURLSession *session);

    /// Makes a task that starts with its `resume()`. `completion` must not be empty. It is called
    /// exactly once after `resume()`, on the session's thread, or with NSURLErrorCancelled on the
    /// resuming thread if the session no longer exists. It must not block for long: it delays every
    /// other task. Errors have the domain NSURLErrorDomain and a URLErrorCode.
    [[nodiscard]] std::shared_ptr<NSURLSessionDataTask>
    dataTaskWithRequest(const NSMutableURLRequest &request,
                        NSURLSessionDataTask::Completion completion);

private:
    std::shared_ptr<TaskQueue> m_queue;
    SessionThread m_thread;
};
