// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <atomic>
#include <chrono>

namespace sandbox {

/// The service's time: the machine's, put forward by as much as one likes. Safe on any thread.
class Clock {
public:
    explicit Clock(std::chrono::seconds offset) : m_offset(offset.count()) {}

    void advance(std::chrono::seconds time) { m_offset += time.count(); }
    /// Seconds since 1970, UTC.
    [[nodiscard]] qint64 now() const { return QDateTime::currentSecsSinceEpoch() + m_offset; }
    /// In local time.
    [[nodiscard]] QDateTime dateTime() const { return QDateTime::fromSecsSinceEpoch(now()); }
    /// As accounts and issues have it.
    [[nodiscard]] QString text() const { return dateTime().toString(u"yyyy-MM-dd HH:mm:ss"); }

private:
    std::atomic<qint64> m_offset;
};

} // namespace sandbox
