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
    for (;;) {
        const Incoming incoming = takeIncoming();
        for (const Task &task : incoming.tasks) {
            start(task);
        }
        if (incoming.stopping) {
            break;
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

/// Without a loader, waits until there is something to take.
TaskQueue::Incoming TaskQueue::takeIncoming()
{
    std::unique_lock lock(m_mutex);
    if (!m_loader) {
        m_wake.wait(lock, [this] { return m_stopping || !m_incoming.empty(); });
    }
    return {std::exchange(m_incoming, {}), m_stopping};
}

/// Null if its module cannot be loaded.
HTTPLoader *TaskQueue::loader()
{
    if (!m_loader) {
        std::unique_ptr<HTTPLoader> loaded = HTTPLoader::load(m_configuration, m_proxy);
        const std::lock_guard lock(m_mutex);
        m_loader = std::move(loaded);
        if (m_loader) {
            m_loader->wake(); // nobody was woken for what has come meanwhile
        }
    }
    return m_loader.get();
}

void TaskQueue::start(const Task &task)
{
    HTTPLoader *const loaded = loader();
    if (!loaded) {
        complete(task, {{}, NSURLErrorUnknown});
        return;
    }
    loaded->start(task->originalRequest(),
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
