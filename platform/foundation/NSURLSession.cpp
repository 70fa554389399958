// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSURLSession.h"

#include "platform/foundation/NSURLSessionQueue.h"

#include <csignal>

namespace {

std::atomic<NSURLSession *> installedSession = nullptr;

/// A thread that leaves every signal to the others, so that a connection closed by the server
/// never interrupts the process.
template <typename Function>
std::thread threadWithoutSignals(Function function)
{
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread(std::move(function));
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

} // namespace

NSURLSession::NSURLSession(const NSURLSessionConfiguration &configuration)
    : m_queue(std::make_shared<NSURLSessionQueue>()),
      m_thread(
          threadWithoutSignals([queue = m_queue, configuration] { queue->run(configuration); }))
{
}

NSURLSession::~NSURLSession()
{
    m_queue->stop();
    m_thread.join();
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
