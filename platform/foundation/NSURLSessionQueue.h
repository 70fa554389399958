// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/NSURLSessionConfiguration.h"

#include <memory>
#include <mutex>
#include <vector>

class HTTPLoader;
class NSURLSessionDataTask;

/// Hands resumed tasks over to the thread of their session.
class NSURLSessionQueue {
public:
    using Task = std::shared_ptr<NSURLSessionDataTask>;

    /// False, and nothing done, once run() no longer takes tasks. Any thread.
    [[nodiscard]] bool enqueue(const Task &task);

    /// Makes run() cancel what is under way and return. Any thread.
    void stop();

    /// The life of the session's thread: runs tasks until stop().
    void run(const NSURLSessionConfiguration &configuration);

private:
    struct Arrival {
        std::vector<Task> tasks;
        bool stopping = false;
    };
    Arrival takeArrivals();
    void setLoader(HTTPLoader *loader);
    void cancelArrivals();

    std::mutex m_mutex;
    std::vector<Task> m_incoming;
    HTTPLoader *m_loader = nullptr;
    bool m_stopping = false;
    bool m_closed = false;
};
