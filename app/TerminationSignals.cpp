// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/TerminationSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int signalNumbers[] = {SIGTERM, SIGINT, SIGHUP};

// The signal handler writes to this pipe to wake the main thread. A handler reaches only globals.
constinit std::array<std::atomic<int>, 2> pipeEnds{-1, -1};

void wake(int)
{
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
    errno = error;
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int number : signalNumbers) {
        struct sigaction previous = {};
        // A signal that the parent process made this one ignore stays ignored.
        if (sigaction(number, nullptr, &previous) == 0 && previous.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
}

} // namespace

TerminationSignals::TerminationSignals(const std::function<void()> &terminate)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // the signals keep their default actions
    }
    pipeEnds[0] = ends[0];
    pipeEnds[1] = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, terminate] {
                         m_notifier->setEnabled(false);
                         terminate();
                     });
    setHandler(wake);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier) {
        return;
    }
    setHandler(SIG_DFL);
    m_notifier.reset();
    for (auto &end : pipeEnds) {
        close(end.exchange(-1));
    }
}
