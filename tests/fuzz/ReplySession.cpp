// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/fuzz/ReplySession.h"

namespace {

NSURLSession *shared = nullptr;
QByteArray currentReply;

} // namespace

NSURLSession::NSURLSession(const NSURLSessionConfiguration &) {}

NSURLSession::~NSURLSession() = default;

NSURLSession *NSURLSession::sharedSession()
{
    return shared;
}

void NSURLSession::setSharedSession(NSURLSession *session)
{
    shared = session;
}

std::shared_ptr<NSURLSessionDataTask>
NSURLSession::dataTaskWithRequest(const NSMutableURLRequest &request,
                                  NSURLSessionDataTask::Completion completion)
{
    return std::make_shared<NSURLSessionDataTask>(request, std::move(completion),
                                                  std::weak_ptr<NSURLSessionQueue>());
}

NSURLSessionDataTask::NSURLSessionDataTask(NSMutableURLRequest request, Completion completion,
                                           std::weak_ptr<NSURLSessionQueue> queue)
    : m_request(std::move(request)), m_completion(std::move(completion)), m_queue(std::move(queue))
{
}

void NSURLSessionDataTask::resume()
{
    complete(currentReply, std::nullopt);
}

void NSURLSessionDataTask::complete(const QByteArray &data, std::optional<NSURLErrorCode>)
{
    m_completion(data, std::nullopt);
}

ReplySession::ReplySession(const QByteArray &reply) : m_session(NSURLSessionConfiguration())
{
    currentReply = reply;
    NSURLSession::setSharedSession(&m_session);
}

ReplySession::~ReplySession()
{
    NSURLSession::setSharedSession(nullptr);
}
