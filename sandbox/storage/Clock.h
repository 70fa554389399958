// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <atomic>
#include <chrono>

namespace sandbox {

/// The service's clock: the machine's with an offset. Safe on any thread.
class Clock {
public:
    explicit Clock(std::chrono::seconds offset) : m_offset(offset.count()) {}

    void advance(std::chrono::seconds time) { m_offset += time.count(); }
    /// Seconds since 1970, UTC.
    [[nodiscard]] qint64 now() const { return QDateTime::currentSecsSinceEpoch() + m_offset; }
    /// The local time.
    [[nodiscard]] QDateTime dateTime() const { return QDateTime::fromSecsSinceEpoch(now()); }
    /// The local time in the format of accounts and issues.
    [[nodiscard]] QString text() const { return dateTime().toString(u"yyyy-MM-dd HH:mm:ss"); }

private:
    std::atomic<qint64> m_offset;
};

} // namespace sandbox
