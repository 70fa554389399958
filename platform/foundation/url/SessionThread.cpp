// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/SessionThread.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {

constexpr auto joinTimeout = std::chrono::seconds(1);

std::atomic<int> runningThreads = 0;

/// A thread that blocks all signals, so that SIGPIPE of a closed connection cannot end the process.
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

/// A detached thread may still use libraries that the normal exit would clean up.
void exitWithoutCleanup(int status, void *)
{
    if (runningThreads > 0) {
        std::fflush(nullptr);
        _exit(status);
    }
}

} // namespace

SessionThread::SessionThread(std::function<void()> body)
{
    std::promise<void> finished;
    m_finished = finished.get_future();
    ++runningThreads;
    m_thread =
        threadWithoutSignals([body = std::move(body), finished = std::move(finished)]() mutable {
            body();
            // The objects that it holds are destroyed before join() returns.
            body = {};
            --runningThreads;
            finished.set_value();
        });
}

bool SessionThread::joinOrDetach()
{
    if (m_finished.wait_for(joinTimeout) == std::future_status::ready) {
        m_thread.join();
        return true;
    }
    // Exit handlers run in reverse order: this one precedes all that are registered by now.
    static const int registered = on_exit(exitWithoutCleanup, nullptr);
    (void)registered;
    m_thread.detach();
    return false;
}
