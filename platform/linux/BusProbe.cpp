// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/BusProbe.h"

#include "platform/files/FileDescriptor.h"
#include "platform/linux/BusHello.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <optional>

#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView transport = "unix:";

/// The socket of a D-Bus server address such as "unix:path=/run/bus,guid=1". The name of an
/// abstract socket begins with a null character. Empty for any other kind of address.
QByteArray socketName(const QByteArray &address)
{
    for (const QByteArray &pair : address.mid(transport.size()).split(',')) {
        QByteArray name = QByteArray::fromPercentEncoding(pair.mid(pair.indexOf('=') + 1));
        if (pair.startsWith("path=")) {
            return name;
        }
        if (pair.startsWith("abstract=")) {
            return name.prepend('\0');
        }
    }
    return {};
}

/// A socket that is connected to `name`. Negative on failure, with EAGAIN in errno if the queue of
/// the bus remains full until `deadline`.
int connectedSocket(const QByteArray &name, QDeadlineTimer deadline)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (name.isEmpty() || static_cast<size_t>(name.size()) >= sizeof address.sun_path) {
        return -1;
    }
    std::copy(name.begin(), name.end(), address.sun_path);
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<size_t>(name.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const qint64 left = std::max(qint64{1}, deadline.remainingTime()); // 0 means no limit
    const timeval timeout{.tv_sec = left / 1000, .tv_usec = left % 1000 * 1000};
    setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout);
    if (connect(descriptor, reinterpret_cast<const sockaddr *>(&address), length) == 0) {
        return descriptor;
    }
    const int reason = errno;
    close(descriptor);
    errno = reason;
    return -1;
}

/// Input of the bus up to the end of a line, or until it closes the connection; nil at the
/// deadline.
std::optional<QByteArray> receiveLine(int descriptor, QDeadlineTimer deadline)
{
    QByteArray line;
    std::array<char, 256> buffer{};
    pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
    while (!line.contains('\n')) {
        const int timeout = static_cast<int>(deadline.remainingTime());
        if (poll(&waiting, 1, timeout) == 0 || deadline.hasExpired()) {
            return std::nullopt;
        }
        const ssize_t length = recv(descriptor, buffer.data(), buffer.size(), 0);
        if (length <= 0) {
            break;
        }
        line.append(buffer.data(), length);
    }
    return line;
}

bool sendAll(int descriptor, const QByteArray &bytes)
{
    return send(descriptor, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL)
        == bytes.size();
}

/// Authenticates, calls Hello and waits for any reply. To refuse or to close the connection is an
/// answer too.
bool answersHello(int descriptor, QDeadlineTimer deadline)
{
    const QByteArray user = QByteArray::number(geteuid()).toHex();
    if (!sendAll(descriptor, '\0' + ("AUTH EXTERNAL " + user) + "\r\n")) {
        return true;
    }
    const std::optional<QByteArray> line = receiveLine(descriptor, deadline);
    if (!line || !line->startsWith("OK ") || !sendAll(descriptor, "BEGIN\r\n" + helloCall())) {
        return line.has_value();
    }
    pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
    return poll(&waiting, 1, static_cast<int>(deadline.remainingTime())) != 0;
}

} // namespace

bool busAnswers(const QByteArray &address, QDeadlineTimer deadline)
{
    // Of several addresses the bus libraries use the first that accepts a connection.
    for (const QByteArray &one : address.split(';')) {
        if (!one.startsWith(transport)) {
            return true;
        }
        const FileDescriptor bus(connectedSocket(socketName(one), deadline));
        if (!bus.isOpen() && errno == EAGAIN) {
            return false;
        }
        if (bus.isOpen()) {
            return answersHello(bus.get(), deadline);
        }
    }
    return true;
}
