// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Calls a function on the main thread at SIGTERM, SIGINT and SIGHUP; a second signal of the same
/// kind ends the process at once. There is at most one object, and only while an application object
/// exists.
class TerminationSignals {
public:
    explicit TerminationSignals(const std::function<void()> &terminate);
    /// Restores the signals' default actions.
    ~TerminationSignals();
    Q_DISABLE_COPY_MOVE(TerminationSignals)

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
