// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/MuteSocket.h"
#include "platform/files/FileDescriptor.h"

#include <array>
#include <list>
#include <thread>

/// A D-Bus server that authenticates its clients and answers none of their calls.
class AuthOnlyBus {
public:
    explicit AuthOnlyBus(const QByteArray &path) : m_listener(path), m_thread([this] { serve(); })
    {
    }
    ~AuthOnlyBus()
    {
        shutdown(m_listener.descriptor(), SHUT_RDWR);
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(AuthOnlyBus)

private:
    void serve()
    {
        for (;;) {
            const int client = accept4(m_listener.descriptor(), nullptr, nullptr, SOCK_CLOEXEC);
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

    MuteSocket m_listener;
    std::list<FileDescriptor> m_clients;
    std::thread m_thread;
};
