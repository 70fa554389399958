// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/ControlSocket.h"

#include <QElapsedTimer>
#include <QFile>

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr int timeoutMilliseconds = 5000;
constexpr size_t maximumClients = 64;
constexpr qsizetype maximumLineLength = qsizetype{1} << 20;

QString socketFailure()
{
    return u"control socket: "_s + QString::fromLocal8Bit(std::strerror(errno));
}

int openDirectory(const QString &directory)
{
    return ::open(QFile::encodeName(directory).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

// The address of a socket has room for 107 characters, and the path of a directory may be longer. A
// path through the open directory is always short enough.
sockaddr_un addressIn(const FileDescriptor &directory)
{
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(directory.get()) + "/control";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path);
    return address;
}

int makeSocket()
{
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

bool sendLine(int file, const QString &line, int flags = 0)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    return ::send(file, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL | flags)
        == bytes.size();
}

bool receiveSome(int file, QByteArray &bytes)
{
    std::array<char, 4096> some{};
    const ssize_t size = ::recv(file, some.data(), some.size(), 0);
    bytes.append(some.data(), std::max(ssize_t{0}, size));
    return size > 0;
}

} // namespace

/// One open connection.
struct ControlSocket::Client {
    explicit Client(int accepted) : descriptor(accepted) { sinceInput.start(); }

    FileDescriptor descriptor;
    /// The line that has no end yet.
    QByteArray bytes;
    QElapsedTimer sinceInput;
};

ControlSocket::ControlSocket() = default;

ControlSocket::~ControlSocket()
{
    if (m_thread.joinable()) {
        const std::uint64_t one = 1;
        (void)!::write(m_end->get(), &one, sizeof one);
        m_thread.join();
    }
}

QString ControlSocket::open(const QString &directory, Handler handler)
{
    m_handler = std::move(handler);
    m_listener.emplace(makeSocket());
    m_end.emplace(::eventfd(0, EFD_CLOEXEC));
    const FileDescriptor folder(openDirectory(directory));
    const sockaddr_un address = addressIn(folder);
    ::unlink(address.sun_path);
    if (!m_listener->isOpen() || !m_end->isOpen()
        || ::bind(m_listener->get(), reinterpret_cast<const sockaddr *>(&address), sizeof address)
            != 0
        || ::chmod(address.sun_path, 0600) != 0 || ::listen(m_listener->get(), 8) != 0) {
        return socketFailure();
    }
    m_thread = std::thread([this] {
        while (serve()) {}
    });
    return {};
}

/// Waits for input and handles it. False: the socket is being destroyed.
bool ControlSocket::serve()
{
    std::vector<pollfd> files = filesToPoll();
    const int timeout = m_clients.empty() ? -1 : timeoutMilliseconds;
    // After a failure no file has an event.
    (void)::poll(files.data(), files.size(), timeout);
    if (files[0].revents != 0) {
        return false;
    }
    auto file = files.cbegin() + 2;
    std::erase_if(m_clients, [&](Client &client) {
        const bool hasInput = (file++)->revents != 0;
        return hasInput ? !readLines(client) : client.sinceInput.hasExpired(timeoutMilliseconds);
    });
    if (files[1].revents != 0) {
        const int accepted = ::accept4(m_listener->get(), nullptr, nullptr, SOCK_CLOEXEC);
        if (accepted >= 0) {
            m_clients.emplace_back(accepted);
        }
    }
    return true;
}

std::vector<pollfd> ControlSocket::filesToPoll() const
{
    // Further clients wait until one leaves.
    const short acceptEvents = m_clients.size() < maximumClients ? POLLIN : 0;
    std::vector<pollfd> files{{m_end->get(), POLLIN, 0}, {m_listener->get(), acceptEvents, 0}};
    for (const Client &client : m_clients) {
        files.push_back({client.descriptor.get(), POLLIN, 0});
    }
    return files;
}

/// The handler's result, or the text of an exception.
QString ControlSocket::handle(const QString &line) const
{
    try {
        return m_handler(line);
    } catch (const std::exception &problem) {
        return QString::fromUtf8(problem.what());
    }
}

bool ControlSocket::readLines(Client &client)
{
    client.sinceInput.start();
    if (!receiveSome(client.descriptor.get(), client.bytes)) {
        return false;
    }
    QByteArray &bytes = client.bytes;
    for (qsizetype end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n')) {
        const QString problem = handle(QString::fromUtf8(bytes.left(end)));
        bytes.remove(0, end + 1);
        const QString answer = problem.isEmpty() ? u"ok"_s : u"error: "_s + problem;
        // A client that does not read its answers is disconnected.
        if (!sendLine(client.descriptor.get(), answer, MSG_DONTWAIT)) {
            return false;
        }
    }
    return bytes.size() < maximumLineLength;
}

QString ControlSocket::send(const QString &directory, const QString &line)
{
    const FileDescriptor socket(makeSocket());
    const FileDescriptor folder(openDirectory(directory));
    const sockaddr_un address = addressIn(folder);
    if (::connect(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address)
        != 0) {
        return u"error: no service is running in "_s + directory;
    }
    QByteArray bytes;
    QString text = line;
    sendLine(socket.get(), text.replace(u'\n', u' '));
    while (!bytes.contains('\n') && receiveSome(socket.get(), bytes)) {}
    return bytes.isEmpty() ? u"error: no answer"_s : QString::fromUtf8(bytes.trimmed());
}

} // namespace sandbox
