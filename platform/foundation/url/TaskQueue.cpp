// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/TaskQueue.h"

#include "platform/foundation/url/NSURLSessionDataTask.h"

TaskQueue::TaskQueue(const NSURLSessionConfiguration &configuration) : m_loader(configuration) {}

bool TaskQueue::enqueue(const Task &task)
{
    const std::lock_guard lock(m_mutex);
    if (m_closed) {
        return false;
    }
    m_incoming.push_back(task);
    m_loader.wake();
    return true;
}

void TaskQueue::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopping = true;
    m_loader.wake();
}

void TaskQueue::run()
{
    for (;;) {
        const Incoming incoming = takeIncoming();
        for (const Task &task : incoming.tasks) {
            start(task);
        }
        if (incoming.stopping) {
            break;
        }
        m_loader.wait();
    }
    m_loader.cancelAll();
    cancelIncoming();
}

TaskQueue::Incoming TaskQueue::takeIncoming()
{
    const std::lock_guard lock(m_mutex);
    return {std::exchange(m_incoming, {}), m_stopping};
}

void TaskQueue::start(const Task &task)
{
    m_loader.start(task->originalRequest(),
                   [this, task](const HTTPLoader::Result &result) { complete(task, result); });
}

void TaskQueue::complete(const Task &task, const HTTPLoader::Result &result) const
{
    if (!m_abandoned) {
        task->complete(result.body, result.error);
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
