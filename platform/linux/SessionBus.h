// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>

/// A connection of its own to the session bus, closed with the object; names and objects go with
/// it. Without a bus it is a connection that is not connected: every use of it fails at once,
/// silently.
class SessionBus {
public:
    SessionBus();
    ~SessionBus();
    Q_DISABLE_COPY_MOVE(SessionBus)

    [[nodiscard]] const QDBusConnection &connection() const { return m_connection; }
    [[nodiscard]] bool isConnected() const { return m_connection.isConnected(); }

private:
    QDBusConnection m_connection;
};
