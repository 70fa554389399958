// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>
#include <future>
#include <thread>

/// The thread of a URL session. It blocks all signals, and cannot prevent the process from exiting.
class SessionThread {
public:
    /// Starts the thread, which runs `body` once.
    explicit SessionThread(std::function<void()> body);
    /// Only after joinOrDetach().
    ~SessionThread() = default;
    Q_DISABLE_COPY_MOVE(SessionThread)

    /// Waits up to a second for the end of `body`. False: it still runs, and the thread was
    /// detached.
    [[nodiscard]] bool joinOrDetach();

private:
    std::future<void> m_finished;
    std::thread m_thread;
};
