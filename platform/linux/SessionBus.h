// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDeadlineTimer>

/// A private connection to the session bus. The destructor closes it, which releases its names and
/// objects. Without a bus it is a closed connection, whose calls fail at once and silently.
class SessionBus {
public:
    /// False if there is a session bus that does not answer until `deadline`; it is disabled for
    /// this process then. Where there is none, none is started later. Call it before the
    /// application object is made: its plugins would wait much longer.
    static bool probe(QDeadlineTimer deadline);

    /// Whether this process uses no bus: none is running, or it did not answer.
    [[nodiscard]] static bool isDisabled();

    SessionBus();
    ~SessionBus();
    Q_DISABLE_COPY_MOVE(SessionBus)

    [[nodiscard]] const QDBusConnection &connection() const { return m_connection; }
    [[nodiscard]] bool isConnected() const { return m_connection.isConnected(); }

private:
    QDBusConnection m_connection;
};
