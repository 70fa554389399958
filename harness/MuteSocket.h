// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// A socket that accepts connections while it lives, and says nothing to any of them.
class MuteSocket {
public:
    explicit MuteSocket(const QByteArray &path)
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        if (bind(m_descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
            || listen(m_descriptor, 5) != 0) {
            qFatal("No socket can be made.");
        }
    }
    [[nodiscard]] int descriptor() const { return m_descriptor; }
    ~MuteSocket()
    {
        close(m_descriptor);
        for (const int client : m_clients) {
            close(client);
        }
    }
    /// From now on nobody else is even accepted.
    void fill()
    {
        sockaddr_un address{};
        socklen_t length = sizeof address;
        getsockname(m_descriptor, reinterpret_cast<sockaddr *>(&address), &length);
        do {
            m_clients.append(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        } while (connect(m_clients.last(), reinterpret_cast<sockaddr *>(&address), length) == 0);
    }
    Q_DISABLE_COPY_MOVE(MuteSocket)

private:
    QList<int> m_clients;
    int m_descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};
