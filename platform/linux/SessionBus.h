// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDeadlineTimer>

/// A connection of its own to the session bus, closed with the object; names and objects go with
/// it. Without a bus it is a connection that is not connected: every use of it fails at once,
/// silently.
class SessionBus {
public:
    /// Asks the session bus whether it is alive and waits until `deadline` for an answer. False:
    /// from then on there is no bus for this process. Before the
    /// application object is made, whose plugins would wait for the bus much longer.
    static bool probe(QDeadlineTimer deadline);

    /// There is no bus for this process: none is known, or it was found to be dead.
    [[nodiscard]] static bool isDisabled();

    SessionBus();
    ~SessionBus();
    Q_DISABLE_COPY_MOVE(SessionBus)

    [[nodiscard]] const QDBusConnection &connection() const { return m_connection; }
    [[nodiscard]] bool isConnected() const { return m_connection.isConnected(); }

private:
    QDBusConnection m_connection;
};
