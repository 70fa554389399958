// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSURLSessionDataTask.h"

#include "platform/foundation/url/TaskQueue.h"

NSURLSessionDataTask::NSURLSessionDataTask(NSMutableURLRequest request, Completion completion,
                                           std::weak_ptr<TaskQueue> queue)
    : m_request(std::move(request)), m_completion(std::move(completion)), m_queue(std::move(queue))
{
}

void NSURLSessionDataTask::resume()
{
    if (m_resumed.test_and_set()) {
        return;
    }
    const std::shared_ptr<TaskQueue> queue = m_queue.lock();
    if (!queue || !queue->enqueue(shared_from_this())) {
        complete({}, NSURLErrorCancelled);
    }
}

void NSURLSessionDataTask::complete(QByteArray data, std::optional<URLErrorCode> code)
{
    // Destroys the objects that the completion holds as soon as it has run.
    const Completion completion = std::exchange(m_completion, {});
    if (code) {
        completion({}, NSError{QString::fromUtf16(NSURLErrorDomain), *code});
    } else {
        completion(std::move(data), std::nullopt);
    }
}
