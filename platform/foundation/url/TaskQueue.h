// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/HTTPLoader.h"

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class NSURLSessionDataTask;

/// Passes resumed tasks to the thread of their session.
class TaskQueue {
public:
    using Task = std::shared_ptr<NSURLSessionDataTask>;

    /// Reads the proxy variables of the environment.
    explicit TaskQueue(const NSURLSessionConfiguration &configuration);

    /// False once run() accepts no more tasks. Any thread.
    [[nodiscard]] bool enqueue(const Task &task);

    /// Makes run() cancel all tasks and return. Any thread.
    void stop();

    /// No completion is called after this. Any thread.
    void abandon() { m_abandoned = true; }

    /// Runs tasks until stop(). The body of the session's thread.
    void run();

private:
    void wake();
    std::optional<std::vector<Task>> takeIncoming();
    void start(const Task &task);
    void complete(const Task &task, HTTPLoader::Result result) const;
    void cancelIncoming();

    const NSURLSessionConfiguration m_configuration;
    const HTTPProxy m_proxy = HTTPProxy::fromEnvironment();
    std::atomic<bool> m_abandoned = false;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    /// Made for the first task, by run().
    std::unique_ptr<HTTPLoader> m_loader;
    std::vector<Task> m_incoming;
    bool m_stopping = false;
    bool m_closed = false;
};
