// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/FrameClock.h"

#include "bench/Figures.h"

#include <QQuickWindow>

#include <ctime>
#include <utility>

namespace {

std::chrono::nanoseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

FrameClock::FrameClock(QQuickWindow &window)
{
    connect(&window, &QQuickWindow::frameSwapped, this, [this] {
        const auto now = processorTime();
        m_frames.append(Milliseconds(now - std::exchange(m_last, now)).count());
    });
}

void FrameClock::start()
{
    m_frames.clear();
    m_last = processorTime();
}
