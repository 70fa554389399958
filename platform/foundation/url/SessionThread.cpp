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

constexpr auto patience = std::chrono::seconds(1);

std::atomic<int> running = 0;

/// A thread without signals: a connection that the server closes never interrupts the process.
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

/// At the end of the process libraries put away what a thread that was left may be using.
void skipWhatIsInUse(int status, void *)
{
    if (running > 0) {
        std::fflush(nullptr);
        _exit(status);
    }
}

} // namespace

SessionThread::SessionThread(std::function<void()> life)
{
    std::promise<void> ended;
    m_ended = ended.get_future();
    ++running;
    m_thread = threadWithoutSignals([life = std::move(life), ended = std::move(ended)]() mutable {
        life();
        // What it holds is let go of before anybody is told.
        life = {};
        --running;
        ended.set_value();
    });
}

bool SessionThread::end()
{
    if (m_ended.wait_for(patience) == std::future_status::ready) {
        m_thread.join();
        return true;
    }
    // Runs before whatever was registered until now.
    static const int registered = on_exit(skipWhatIsInUse, nullptr);
    (void)registered;
    m_thread.detach();
    return false;
}
