// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/BusProbe.h"

#include <QByteArrayList>

#include <algorithm>
#include <cerrno>
#include <cstddef>

#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr QByteArrayView transport = "unix:";

/// The socket of an address such as "unix:path=/run/bus,guid=1", in the system's notation: one of
/// the abstract kind begins with a null character. Empty for what is no socket's.
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

/// A socket that is connected to `name`. Negative for none, with EAGAIN in errno when as many wait
/// there as may until `deadline`.
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
    const qint64 left = std::max(qint64{1}, deadline.remainingTime()); // 0 would be for ever
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

/// Asks which ways to prove who one is there are, as every client may, and waits for any answer.
bool answers(int descriptor, QDeadlineTimer deadline)
{
    constexpr char question[] = "\0AUTH\r\n";
    constexpr ssize_t length = sizeof question - 1;
    pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
    return send(descriptor, question, static_cast<size_t>(length), MSG_NOSIGNAL) != length
        || poll(&waiting, 1, static_cast<int>(deadline.remainingTime())) != 0;
}

} // namespace

bool busAnswers(const QByteArray &address, QDeadlineTimer deadline)
{
    // Of several the libraries take the first that accepts; one that refuses answers at once.
    for (const QByteArray &one : address.split(';')) {
        if (!one.startsWith(transport)) {
            return true;
        }
        const int descriptor = connectedSocket(socketName(one), deadline);
        if (descriptor < 0 && errno == EAGAIN) {
            return false;
        }
        if (descriptor < 0) {
            continue;
        }
        const bool answered = answers(descriptor, deadline);
        close(descriptor);
        return answered;
    }
    return true;
}
