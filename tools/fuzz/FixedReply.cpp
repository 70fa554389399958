// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/fuzz/FixedReply.h"

#include "platform/foundation/url/NSURLSession.h"

namespace {

NSURLSession *installed = nullptr;
QByteArray currentReply;

} // namespace

NSURLSession::NSURLSession(const NSURLSessionConfiguration &) : m_thread([] {}) {}

NSURLSession::~NSURLSession()
{
    (void)m_thread.joinOrDetach();
}

NSURLSession *NSURLSession::sharedSession()
{
    return installed;
}

void NSURLSession::setSharedSession(NSURLSession *session)
{
    installed = session;
}

std::shared_ptr<NSURLSessionDataTask>
NSURLSession::dataTaskWithRequest(const NSMutableURLRequest &request,
                                  NSURLSessionDataTask::Completion completion)
{
    return std::make_shared<NSURLSessionDataTask>(request, std::move(completion),
                                                  std::weak_ptr<TaskQueue>());
}

NSURLSessionDataTask::NSURLSessionDataTask(NSMutableURLRequest request, Completion completion,
                                           std::weak_ptr<TaskQueue> queue)
    : m_request(std::move(request)), m_completion(std::move(completion)), m_queue(std::move(queue))
{
}

void NSURLSessionDataTask::resume()
{
    complete(currentReply, std::nullopt);
}

void NSURLSessionDataTask::complete(QByteArray data, std::optional<URLErrorCode>)
{
    m_completion(std::move(data), std::nullopt);
}

void completeEveryTaskWith(const QByteArray &reply)
{
    static NSURLSession session{NSURLSessionConfiguration()};
    NSURLSession::setSharedSession(&session);
    currentReply = reply;
}
