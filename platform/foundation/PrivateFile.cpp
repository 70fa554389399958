// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/PrivateFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;
constexpr int lockAttempts = 50;
constexpr auto lockPause = 10ms;

bool writeAll(int descriptor, const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const ssize_t length =
            write(descriptor, content.constData() + done, size_t(content.size() - done));
        if (length < 0 && errno != EINTR) {
            return false;
        }
        done += std::max(length, ssize_t(0));
    }
    return true;
}

bool readAll(int descriptor, QByteArray *content)
{
    std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t length = read(descriptor, buffer.data(), buffer.size());
        if (length == 0 || (length < 0 && errno != EINTR)) {
            return length == 0;
        }
        content->append(buffer.data(), std::max(length, ssize_t(0)));
    }
}

bool isFile(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

int openFolder(const QByteArray &path)
{
    QDir().mkpath(QFile::decodeName(path) + QStringLiteral("/.."));
    mkdir(path.constData(), folderMode);
    return open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool lockSoon(int descriptor)
{
    for (int attempt = 0; attempt < lockAttempts; ++attempt) {
        // A file system that knows no locks keeps nobody out, and must not keep us out either.
        if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
            return true;
        }
        std::this_thread::sleep_for(lockPause);
    }
    return false;
}

} // namespace

PrivateFile::Lock::Lock(const PrivateFile &file) : m_folder(openFolder(file.m_folder))
{
    m_held =
        m_folder.isOpen() && fchmod(m_folder.get(), folderMode) == 0 && lockSoon(m_folder.get());
}

PrivateFile::PrivateFile(const QString &folder, const QString &name)
    : m_folder(QFile::encodeName(folder)), m_name(QFile::encodeName(name))
{
}

PrivateFile::State PrivateFile::read(QByteArray *content) const
{
    const QByteArray path = m_folder + '/' + m_name;
    const FileDescriptor file(open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) {
        const bool absent = errno == ENOENT || errno == ENOTDIR;
        const bool closed = errno == EACCES || errno == ELOOP || errno == ENXIO;
        return absent ? State::Absent : closed ? State::Unreadable : State::Unavailable;
    }
    if (!isFile(file.get())) {
        return State::Unreadable;
    }
    return readAll(file.get(), content) ? State::Read : State::Unavailable;
}

bool PrivateFile::write(const Lock &lock, const QByteArray &content) const
{
    if (!lock.isHeld()) {
        return false;
    }
    const int folder = lock.m_folder.get();
    // Always the same name, so that a killed writer leaves no more than one, and the next one
    // clears it away.
    const QByteArray temporary = m_name + ".tmp";
    unlinkat(folder, temporary.constData(), 0);
    const FileDescriptor file(
        openat(folder, temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileMode));
    const bool complete = file.isOpen() && fchmod(file.get(), fileMode) == 0
        && writeAll(file.get(), content) && fsync(file.get()) == 0;
    if (!complete || renameat(folder, temporary.constData(), folder, m_name.constData()) != 0) {
        unlinkat(folder, temporary.constData(), 0);
        return false;
    }
    // The content is in place; without this a power cut might bring the old one back.
    fsync(folder);
    return true;
}

bool PrivateFile::remove() const
{
    const QByteArray path = m_folder + '/' + m_name;
    if (unlink(path.constData()) != 0) {
        return errno == ENOENT || errno == ENOTDIR;
    }
    const FileDescriptor folder(open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    fsync(folder.get());
    return true;
}

bool PrivateFile::moveAside(const Lock &lock) const
{
    QByteArray place = m_folder + '/' + m_name + ".damaged-XXXXXX";
    if (!lock.isHeld() || !mkdtemp(place.data())) {
        return false;
    }
    const QByteArray target = place + '/' + m_name;
    if (renameat(lock.m_folder.get(), m_name.constData(), AT_FDCWD, target.constData()) != 0) {
        rmdir(place.constData());
        return false;
    }
    return true;
}
