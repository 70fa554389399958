// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the main thread; a second signal of the same
/// kind ends the process at once. One object at a time, within an application object.
class TerminationSignals {
public:
    explicit TerminationSignals(const std::function<void()> &terminate);
    /// Signals do what they do by default from then on.
    ~TerminationSignals();
    Q_DISABLE_COPY_MOVE(TerminationSignals)

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
