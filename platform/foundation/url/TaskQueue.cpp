// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/TaskQueue.h"

#include "platform/foundation/url/NSURLSessionDataTask.h"

TaskQueue::TaskQueue(const NSURLSessionConfiguration &configuration)
    : m_configuration(configuration)
{
}

bool TaskQueue::enqueue(const Task &task)
{
    const std::lock_guard lock(m_mutex);
    if (m_closed) {
        return false;
    }
    m_incoming.push_back(task);
    wake();
    return true;
}

void TaskQueue::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopping = true;
    wake();
}

/// With the mutex held.
void TaskQueue::wake()
{
    if (m_loader) {
        m_loader->wake();
    } else {
        m_wake.notify_one();
    }
}

void TaskQueue::run()
{
    while (const std::optional<std::vector<Task>> tasks = takeIncoming()) {
        for (const Task &task : *tasks) {
            start(task);
        }
        if (m_loader) {
            m_loader->wait();
        }
    }
    if (m_loader) {
        m_loader->cancelAll();
    }
    cancelIncoming();
}

/// Nothing once the queue is stopping. Without a loader, waits for the first task and makes one:
/// tasks that come meanwhile are taken as well, those that come later wake it.
std::optional<std::vector<TaskQueue::Task>> TaskQueue::takeIncoming()
{
    std::unique_lock lock(m_mutex);
    if (!m_loader) {
        m_wake.wait(lock, [this] { return m_stopping || !m_incoming.empty(); });
    }
    if (!m_loader && !m_stopping) {
        lock.unlock();
        std::unique_ptr<HTTPLoader> loaded = HTTPLoader::load(m_configuration, m_proxy);
        lock.lock();
        m_loader = std::move(loaded);
    }
    if (m_stopping) {
        return std::nullopt;
    }
    return std::exchange(m_incoming, {});
}

/// Without a loader its module could not be loaded.
void TaskQueue::start(const Task &task)
{
    if (!m_loader) {
        complete(task, {{}, NSURLErrorUnknown});
        return;
    }
    m_loader->start(task->originalRequest(),
                    [this, task](HTTPLoader::Result result) { complete(task, std::move(result)); });
}

void TaskQueue::complete(const Task &task, HTTPLoader::Result result) const
{
    if (!m_abandoned) {
        task->complete(std::move(result.body), result.error);
    }
}

/// Completions may resume further tasks, so the queue closes when it is empty.
void TaskQueue::cancelIncoming()
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
            complete(task, {{}, NSURLErrorCancelled});
        }
    }
}
