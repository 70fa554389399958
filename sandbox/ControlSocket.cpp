// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/ControlSocket.h"

#include <QElapsedTimer>
#include <QFile>

#include <fcntl.h>
#include <poll.h>
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
#include <list>
#include <vector>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr int patienceMilliseconds = 5000;
constexpr size_t mostClients = 64;
constexpr qsizetype longestLine = qsizetype{1} << 20;

QString failure()
{
    return u"control socket: "_s + QString::fromLocal8Bit(std::strerror(errno));
}

/// Closes what it holds.
struct File {
    explicit File(int opened) : number(opened) {}
    ~File()
    {
        if (number >= 0) {
            ::close(number);
        }
    }
    Q_DISABLE_COPY_MOVE(File)
    int number;
};

File openDirectory(const QString &directory)
{
    return File(::open(QFile::encodeName(directory).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

// A socket's address has room for 107 characters, a directory's name may have more: the way through
// the open directory is always short.
sockaddr_un addressIn(const File &directory)
{
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(directory.number) + "/control";
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

/// Somebody who has connected.
struct ControlSocket::Client {
    explicit Client(int accepted) : file(accepted) { lastWord.start(); }

    File file;
    QByteArray bytes;
    QElapsedTimer lastWord;
};

ControlSocket::~ControlSocket()
{
    if (m_thread.joinable()) {
        const std::uint64_t one = 1;
        (void)!::write(m_end, &one, sizeof one);
        m_thread.join();
    }
    const File listener(m_listener);
    const File end(m_end);
}

QString ControlSocket::open(const QString &directory, Handler handler)
{
    m_handler = std::move(handler);
    m_listener = makeSocket();
    m_end = ::eventfd(0, EFD_CLOEXEC);
    const File folder = openDirectory(directory);
    const sockaddr_un address = addressIn(folder);
    ::unlink(address.sun_path);
    if (m_listener < 0 || m_end < 0
        || ::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        || ::chmod(address.sun_path, 0600) != 0 || ::listen(m_listener, 8) != 0) {
        return failure();
    }
    m_thread = std::thread([this] { serve(); });
    return {};
}

void ControlSocket::serve()
{
    std::list<Client> clients;
    for (;;) {
        // More of them than this wait until one goes.
        const short forNew = clients.size() < mostClients ? POLLIN : 0;
        std::vector<pollfd> files{{m_end, POLLIN, 0}, {m_listener, forNew, 0}};
        int wait = -1;
        for (const Client &client : clients) {
            files.push_back({client.file.number, POLLIN, 0});
            wait = patienceMilliseconds;
        }
        const bool isReady = ::poll(files.data(), files.size(), wait) > 0;
        if (isReady && files[0].revents != 0) {
            return;
        }
        auto ready = files.cbegin() + 2;
        std::erase_if(clients, [&](Client &client) {
            const bool hasSpoken = isReady && (ready++)->revents != 0;
            return hasSpoken ? !converse(client) : client.lastWord.hasExpired(patienceMilliseconds);
        });
        if (isReady && files[1].revents != 0) {
            const int accepted = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            if (accepted >= 0) {
                clients.emplace_back(accepted);
            }
        }
    }
}

/// What was wrong with the line, or nothing.
QString ControlSocket::handled(const QString &line) const
{
    try {
        return m_handler(line);
    } catch (const std::exception &problem) {
        return QString::fromUtf8(problem.what());
    }
}

bool ControlSocket::converse(Client &client)
{
    client.lastWord.start();
    if (!receiveSome(client.file.number, client.bytes)) {
        return false;
    }
    QByteArray &bytes = client.bytes;
    for (qsizetype end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n')) {
        const QString problem = handled(QString::fromUtf8(bytes.left(end)));
        bytes.remove(0, end + 1);
        const QString answer = problem.isEmpty() ? u"ok"_s : u"error: "_s + problem;
        // Whoever does not read the answers is not waited for either.
        if (!sendLine(client.file.number, answer, MSG_DONTWAIT)) {
            return false;
        }
    }
    return bytes.size() < longestLine;
}

QString ControlSocket::send(const QString &directory, const QString &line)
{
    const File socket(makeSocket());
    const File folder = openDirectory(directory);
    const sockaddr_un address = addressIn(folder);
    if (::connect(socket.number, reinterpret_cast<const sockaddr *>(&address), sizeof address)
        != 0) {
        return u"error: no service is running in "_s + directory;
    }
    QByteArray bytes;
    QString text = line;
    sendLine(socket.number, text.replace(u'\n', u' '));
    while (!bytes.contains('\n') && receiveSome(socket.number, bytes)) {}
    return bytes.isEmpty() ? u"error: no answer"_s : QString::fromUtf8(bytes.trimmed());
}

} // namespace sandbox
