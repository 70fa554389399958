// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>
#include <future>
#include <thread>

/// The thread of a URL session. It leaves every signal to the others, and keeps no program from
/// ending.
class SessionThread {
public:
    /// Starts it: it calls `life`, and ends.
    explicit SessionThread(std::function<void()> life);
    /// After end().
    ~SessionThread() = default;
    Q_DISABLE_COPY_MOVE(SessionThread)

    /// Waits until `life` has returned, for a second at most. False: it has not, and the thread is
    /// left alone from now on, until the process ends.
    [[nodiscard]] bool end();

private:
    std::future<void> m_ended;
    std::thread m_thread;
};
