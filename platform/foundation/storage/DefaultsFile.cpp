// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/storage/DefaultsFile.h"

#include "platform/files/PrivateFolder.h"

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

constexpr auto lockTimeout = 90ms;
constexpr auto lockRetryInterval = 10ms;
constexpr auto damagedSuffix = ".damaged-";

using State = DefaultsFile::State;

/// Stops beyond `maximumLength`: the size that the system reports may be 0 or out of date.
State readAll(int descriptor, qsizetype maximumLength, QByteArray *content)
{
    std::array<char, 16384> buffer{};
    while (content->size() <= maximumLength) {
        const ssize_t length = read(descriptor, buffer.data(), buffer.size());
        if (length == 0 || (length < 0 && errno != EINTR)) {
            return length == 0 ? State::Read : State::Unavailable;
        }
        content->append(buffer.data(), std::max<ssize_t>(length, 0));
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

bool lockWithTimeout(int descriptor, std::chrono::milliseconds timeout)
{
    for (;; timeout -= lockRetryInterval) {
        // On a file system without locks no process can hold one.
        if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
            return true;
        }
        if (timeout < lockRetryInterval) {
            return false;
        }
        std::this_thread::sleep_for(lockRetryInterval);
    }
}

} // namespace

DefaultsFile::Lock::Lock(const DefaultsFile &file) : m_folder(PrivateFolder::open(file.m_folder))
{
    const bool isPrivate = m_folder.isOpen()
        && (isLink(file.m_folder) || fchmod(m_folder.get(), PrivateFolder::mode) == 0);
    m_held = isPrivate && lockWithTimeout(m_folder.get(), file.m_waitsForLock ? lockTimeout : 0ms);
    file.m_waitsForLock = m_held || !isPrivate;
}

DefaultsFile::DefaultsFile(const QString &folder, const QString &name, qsizetype maximumLength)
    : m_folder(QFile::encodeName(folder)),
      m_name(QFile::encodeName(name)),
      m_maximumLength(maximumLength)
{
}

DefaultsFile::State DefaultsFile::read(QByteArray *content) const
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

bool DefaultsFile::write(const Lock &lock, const QByteArray &content) const
{
    return lock.isHeld() && PrivateFolder::replace(lock.m_folder.get(), m_name, content);
}

bool DefaultsFile::remove() const
{
    // First: a stopped writer that goes on would rename it to the removed file.
    removeTemporary();
    if (unlink(path().constData()) != 0) {
        return errno == ENOENT || errno == ENOTDIR;
    }
    const FileDescriptor folder(open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    fsync(folder.get());
    return true;
}

void DefaultsFile::removeTemporary() const
{
    unlink(QByteArray(m_folder + '/' + PrivateFolder::temporaryName(m_name)).constData());
}

bool DefaultsFile::moveAside(const Lock &lock) const
{
    QByteArray place = path() + damagedSuffix + "XXXXXX";
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

bool DefaultsFile::removeMovedAside() const
{
    bool removed = true;
    const QDir folder(QFile::decodeName(m_folder));
    const QString pattern = QFile::decodeName(m_name + damagedSuffix) + u'*';
    for (const QString &entry : folder.entryList({pattern}, QDir::Dirs | QDir::NoSymLinks)) {
        const QByteArray place = QFile::encodeName(folder.filePath(entry));
        const QByteArray file = place + '/' + m_name;
        const bool isGone = ::remove(file.constData()) == 0 || errno == ENOENT;
        // A folder that is not empty was never written by this class.
        removed = removed && (isGone || errno == ENOTEMPTY);
        rmdir(place.constData());
    }
    return removed;
}
