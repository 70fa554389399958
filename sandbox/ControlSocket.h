// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <thread>

namespace sandbox {

/// The Unix socket `control` in the service's directory, for its owner alone. It takes lines of
/// UTF-8 and answers each with one: "ok", or "error: " and what is wrong. Nobody waits for a client
/// who says nothing, and who does so for five to ten seconds is disconnected.
class ControlSocket {
public:
    /// Takes a line, and returns an empty text or what is wrong with it. Called on the socket's
    /// own thread.
    using Handler = std::function<QString(const QString &)>;

    ControlSocket() = default;
    ~ControlSocket();
    Q_DISABLE_COPY_MOVE(ControlSocket)

    /// Starts to listen; what an earlier service left behind is replaced. Returns an empty text, or
    /// why it cannot.
    QString open(const QString &directory, Handler handler);

    /// Hands a line to the service of that directory, and returns its answer without the line
    /// feed; "error: " and a reason when there is no such service.
    static QString send(const QString &directory, const QString &line);

private:
    struct Client;
    void serve();
    [[nodiscard]] QString handled(const QString &line) const;
    /// False when the client is to go.
    [[nodiscard]] bool converse(Client &client);

    Handler m_handler;
    int m_listener = -1;
    int m_end = -1;
    std::thread m_thread;
};

} // namespace sandbox
