// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/storage/PrivateFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;
constexpr auto lockPatience = 90ms;
constexpr auto lockPause = 10ms;
constexpr auto asideMark = ".damaged-";

bool writeAll(int descriptor, const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const ssize_t length = write(descriptor, content.constData() + done,
                                     static_cast<size_t>(content.size() - done));
        if (length < 0 && errno != EINTR) {
            return false;
        }
        done += std::max(length, ssize_t(0));
    }
    return true;
}

using State = PrivateFile::State;

/// Stops beyond `maximumLength`: a file may grow, and some say that they are empty.
State readAll(int descriptor, qsizetype maximumLength, QByteArray *content)
{
    std::array<char, 16384> buffer{};
    while (content->size() <= maximumLength) {
        const ssize_t length = read(descriptor, buffer.data(), buffer.size());
        if (length == 0 || (length < 0 && errno != EINTR)) {
            return length == 0 ? State::Read : State::Unavailable;
        }
        content->append(buffer.data(), std::max(length, ssize_t(0)));
    }
    return State::Unreadable;
}

bool isFileUpTo(int descriptor, qsizetype maximumLength)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)
        && status.st_size <= maximumLength;
}

bool isLink(const QByteArray &path)
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

int openFolder(const QByteArray &path)
{
    QDir().mkpath(QFile::decodeName(path) + QStringLiteral("/.."));
    mkdir(path.constData(), folderMode);
    return open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool lockWithin(int descriptor, std::chrono::milliseconds patience)
{
    for (;; patience -= lockPause) {
        // A file system that knows no locks keeps nobody out, and must not keep us out either.
        if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
            return true;
        }
        if (patience < lockPause) {
            return false;
        }
        std::this_thread::sleep_for(lockPause);
    }
}

} // namespace

PrivateFile::Lock::Lock(const PrivateFile &file) : m_folder(openFolder(file.m_folder))
{
    const bool isPrivate =
        m_folder.isOpen() && (isLink(file.m_folder) || fchmod(m_folder.get(), folderMode) == 0);
    m_held = isPrivate && lockWithin(m_folder.get(), file.m_patient ? lockPatience : 0ms);
    file.m_patient = m_held || !isPrivate;
}

PrivateFile::PrivateFile(const QString &folder, const QString &name, qsizetype maximumLength)
    : m_folder(QFile::encodeName(folder)),
      m_name(QFile::encodeName(name)),
      m_maximumLength(maximumLength)
{
}

PrivateFile::State PrivateFile::read(QByteArray *content) const
{
    const FileDescriptor file(open(path().constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) {
        const bool absent = errno == ENOENT || errno == ENOTDIR;
        const bool closed = errno == EACCES || errno == ELOOP || errno == ENXIO;
        return absent ? State::Absent : closed ? State::Unreadable : State::Unavailable;
    }
    return isFileUpTo(file.get(), m_maximumLength) ? readAll(file.get(), m_maximumLength, content)
                                                   : State::Unreadable;
}

bool PrivateFile::write(const Lock &lock, const QByteArray &content) const
{
    if (!lock.isHeld()) {
        return false;
    }
    const int folder = lock.m_folder.get();
    // Always the same name, so that a killed writer leaves no more than one, and the next one
    // clears it away.
    const QByteArray temporary = temporaryName();
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
    // First: a writer that stands still would put it in the file's place.
    const QByteArray temporary = m_folder + '/' + temporaryName();
    unlink(temporary.constData());
    if (unlink(path().constData()) != 0) {
        return errno == ENOENT || errno == ENOTDIR;
    }
    const FileDescriptor folder(open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    fsync(folder.get());
    return true;
}

bool PrivateFile::moveAside(const Lock &lock) const
{
    QByteArray place = path() + asideMark + "XXXXXX";
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

bool PrivateFile::removeMovedAside() const
{
    bool removed = true;
    const QDir folder(QFile::decodeName(m_folder));
    const QString pattern = QFile::decodeName(m_name + asideMark) + u'*';
    for (const QString &entry : folder.entryList({pattern}, QDir::Dirs | QDir::NoSymLinks)) {
        const QByteArray place = QFile::encodeName(folder.filePath(entry));
        const QByteArray file = place + '/' + m_name;
        const bool isGone = ::remove(file.constData()) == 0 || errno == ENOENT;
        // A folder with something in it has never been one of these files.
        removed = removed && (isGone || errno == ENOTEMPTY);
        rmdir(place.constData());
    }
    return removed;
}
