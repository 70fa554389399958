// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/FileDescriptor.h"

#include <QString>

#include <functional>
#include <list>
#include <optional>
#include <thread>
#include <vector>

#include <poll.h>

namespace sandbox {

/// The Unix socket `control` in the service's directory, open to its owner alone. It reads lines of
/// UTF-8 and answers each with one line: "ok", or "error: " and a reason. A client that sends
/// nothing delays no other, and is disconnected after five to ten seconds.
class ControlSocket {
public:
    /// Runs one line and returns an empty text or an error message. Called on the socket's own
    /// thread.
    using Handler = std::function<QString(const QString &)>;

    ControlSocket();
    ~ControlSocket();
    Q_DISABLE_COPY_MOVE(ControlSocket)

    /// Starts to listen, and replaces the socket of an earlier service. Returns an empty text, or
    /// the reason of a failure.
    QString open(const QString &directory, Handler handler);

    /// Sends a line to the service of that directory and returns its answer without the line feed.
    /// Without such a service it returns "error: " and a reason.
    static QString send(const QString &directory, const QString &line);

private:
    struct Client;
    [[nodiscard]] bool serve();
    [[nodiscard]] std::vector<pollfd> filesToPoll() const;
    [[nodiscard]] QString handle(const QString &line) const;
    /// Reads and answers the client's lines. False: the client is to be disconnected.
    [[nodiscard]] bool readLines(Client &client);

    Handler m_handler;
    std::optional<FileDescriptor> m_listener;
    std::optional<FileDescriptor> m_end;
    /// Used by the thread alone.
    std::list<Client> m_clients;
    std::thread m_thread;
};

} // namespace sandbox
