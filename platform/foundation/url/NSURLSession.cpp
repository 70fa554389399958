// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSURLSession.h"

#include "platform/foundation/url/TaskQueue.h"

namespace {

std::atomic<NSURLSession *> installedSession = nullptr;

} // namespace

NSURLSession::NSURLSession(const NSURLSessionConfiguration &configuration)
    : m_queue(std::make_shared<TaskQueue>(configuration)),
      m_thread([queue = m_queue] { queue->run(); })
{
}

NSURLSession::~NSURLSession()
{
    m_queue->stop();
    if (!m_thread.joinOrDetach()) {
        m_queue->abandon();
    }
    NSURLSession *self = this;
    installedSession.compare_exchange_strong(self, nullptr);
}

NSURLSession *NSURLSession::sharedSession()
{
    return installedSession;
}

void NSURLSession::setSharedSession(NSURLSession *session)
{
    installedSession = session;
}

std::shared_ptr<NSURLSessionDataTask>
NSURLSession::dataTaskWithRequest(const NSMutableURLRequest &request,
                                  NSURLSessionDataTask::Completion completion)
{
    return std::make_shared<NSURLSessionDataTask>(request, std::move(completion), m_queue);
}
