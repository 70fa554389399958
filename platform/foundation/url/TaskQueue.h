// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/HTTPLoader.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

class NSURLSessionDataTask;

/// Hands resumed tasks over to the thread of their session.
class TaskQueue {
public:
    using Task = std::shared_ptr<NSURLSessionDataTask>;

    explicit TaskQueue(const NSURLSessionConfiguration &configuration);

    /// False, and nothing done, once run() no longer takes tasks. Any thread.
    [[nodiscard]] bool enqueue(const Task &task);

    /// Makes run() cancel what is under way and return. Any thread.
    void stop();

    /// From now on no completion is called. Any thread.
    void abandon() { m_abandoned = true; }

    /// The life of the session's thread: runs tasks until stop().
    void run();

private:
    struct Arrival {
        std::vector<Task> tasks;
        bool stopping = false;
    };
    Arrival takeArrivals();
    void start(const Task &task);
    void complete(const Task &task, const HTTPLoader::Result &result) const;
    void cancelArrivals();

    HTTPLoader m_loader;
    std::atomic<bool> m_abandoned = false;
    std::mutex m_mutex;
    std::vector<Task> m_incoming;
    bool m_stopping = false;
    bool m_closed = false;
};
