// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/FileDescriptor.h"

#include <QByteArray>

#include <array>
#include <list>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>

/// A D-Bus server that authenticates its clients and answers none of their calls.
class AuthOnlyBus {
public:
    explicit AuthOnlyBus(const QByteArray &path)
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        if (bind(m_listener.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address)
                != 0
            || listen(m_listener.get(), 5) != 0) {
            qFatal("No socket can be made.");
        }
        m_thread = std::thread([this] { serve(); });
    }
    ~AuthOnlyBus()
    {
        shutdown(m_listener.get(), SHUT_RDWR);
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(AuthOnlyBus)

private:
    void serve()
    {
        for (;;) {
            const int client = accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0) {
                return;
            }
            m_clients.emplace_back(client);
            answer(client, "AUTH", "OK 0123456789abcdef0123456789abcdef\r\n");
            answer(client, "NEGOTIATE_UNIX_FD", "AGREE_UNIX_FD\r\n");
        }
    }
    static void answer(int client, const char *command, const QByteArray &reply)
    {
        std::array<char, 256> buffer{};
        const ssize_t length = recv(client, buffer.data(), buffer.size(), 0);
        if (length > 0 && QByteArray(buffer.data(), length).contains(command)) {
            send(client, reply.constData(), static_cast<size_t>(reply.size()), MSG_NOSIGNAL);
        }
    }

    FileDescriptor m_listener{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    std::list<FileDescriptor> m_clients;
    std::thread m_thread;
};
