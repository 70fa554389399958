// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"
#include "platform/foundation/url/NSMutableURLRequest.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class TaskQueue;

/// One request of a session. Made by NSURLSession::dataTaskWithRequest.
class NSURLSessionDataTask : public std::enable_shared_from_this<NSURLSessionDataTask> {
public:
    /// `data`: the decoded body, whatever the HTTP status was; empty when `error` is set. Nobody
    /// else holds it.
    using Completion = std::function<void(QByteArray data, const std::optional<NSError> &error)>;

    NSURLSessionDataTask(NSMutableURLRequest request, Completion completion,
                         std::weak_ptr<TaskQueue> queue);

    /// Sends the request; a second call does nothing. Any thread. A task that is never resumed is
    /// never sent and never completes. The session keeps a resumed task alive.
    void resume();

    [[nodiscard]] const NSMutableURLRequest &originalRequest() const { return m_request; }

private:
    friend class TaskQueue;
    void complete(QByteArray data, std::optional<URLErrorCode> code);

    NSMutableURLRequest m_request;
    Completion m_completion;
    std::weak_ptr<TaskQueue> m_queue;
    std::atomic_flag m_resumed;
};
