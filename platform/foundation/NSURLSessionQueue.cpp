// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSURLSessionQueue.h"

#include "platform/foundation/HTTPLoader.h"
#include "platform/foundation/NSURLSessionDataTask.h"

bool NSURLSessionQueue::enqueue(const Task &task)
{
    const std::lock_guard lock(m_mutex);
    if (m_closed) {
        return false;
    }
    m_incoming.push_back(task);
    if (m_loader) {
        m_loader->wake();
    }
    return true;
}

void NSURLSessionQueue::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopping = true;
    if (m_loader) {
        m_loader->wake();
    }
}

void NSURLSessionQueue::run(const NSURLSessionConfiguration &configuration)
{
    HTTPLoader loader(configuration);
    setLoader(&loader);
    for (;;) {
        const Arrival arrival = takeArrivals();
        for (const Task &task : arrival.tasks) {
            loader.start(task->originalRequest(), [task](const HTTPLoader::Result &result) {
                task->complete(result.body, result.error);
            });
        }
        if (arrival.stopping) {
            break;
        }
        loader.wait();
    }
    setLoader(nullptr);
    loader.cancelAll();
    cancelArrivals();
}

NSURLSessionQueue::Arrival NSURLSessionQueue::takeArrivals()
{
    const std::lock_guard lock(m_mutex);
    return {std::exchange(m_incoming, {}), m_stopping};
}

void NSURLSessionQueue::setLoader(HTTPLoader *loader)
{
    const std::lock_guard lock(m_mutex);
    m_loader = loader;
}

/// Completions may resume further tasks; the queue closes when there are no more.
void NSURLSessionQueue::cancelArrivals()
{
    for (;;) {
        std::unique_lock lock(m_mutex);
        if (m_incoming.empty()) {
            m_closed = true;
            return;
        }
        const std::vector<Task> tasks = std::exchange(m_incoming, {});
        lock.unlock();
        for (const Task &task : tasks) {
            task->complete({}, NSURLErrorCancelled);
        }
    }
}
