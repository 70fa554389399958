// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/soak/SmallDisk.h"

#include "platform/files/FileDescriptor.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

QByteArray fillerIn(const QByteArray &folder)
{
    return folder + "/filler";
}

} // namespace

SmallDisk::SmallDisk(const QString &folder) : m_folder(QFile::encodeName(folder))
{
    QDir().mkpath(folder);
    // In a namespace of its own the mount ends with the processes that see it.
    m_isMounted = unshare(CLONE_NEWNS) == 0
        && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount("none", m_folder.constData(), "tmpfs", 0, "size=4m,mode=0700") == 0;
}

SmallDisk::~SmallDisk()
{
    if (m_isMounted) {
        umount2(m_folder.constData(), MNT_DETACH);
    }
}

void SmallDisk::empty() const
{
    unlink(fillerIn(m_folder).constData());
}

FilledDisk::FilledDisk(const QString &folder) : m_folder(QFile::encodeName(folder))
{
    if (m_folder.isEmpty()) {
        m_limit.emplace();
    }
    refill();
}

FilledDisk::~FilledDisk()
{
    if (!m_folder.isEmpty()) {
        unlink(fillerIn(m_folder).constData());
    }
}

void FilledDisk::refill() const
{
    if (m_folder.isEmpty()) {
        return;
    }
    const FileDescriptor file(
        open(fillerIn(m_folder).constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
    const QByteArray piece(4096, '\0');
    while (write(file.get(), piece.constData(), static_cast<size_t>(piece.size())) > 0) {}
}
