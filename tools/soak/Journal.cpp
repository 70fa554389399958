// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/soak/Journal.h"

#include "platform/foundation/coding/NSKeyedArchiver.h"

#include <QCryptographicHash>
#include <QFile>

#include <atomic>
#include <cstdlib>

#include <malloc.h>
#include <unistd.h>

// Qt's hooks for tools that follow its objects: it calls entries 3 and 4 for each that is made
// and destroyed.
extern Q_DECL_IMPORT quintptr qtHookData[];

namespace {

std::atomic<int> living = 0;

void made(QObject *)
{
    ++living;
}
void destroyed(QObject *)
{
    --living;
}

/// The same for users that are the same in all they consist of.
QByteArray nameOf(const std::optional<WZTUser> &user)
{
    if (!user) {
        return "-";
    }
    const auto archive = NSKeyedArchiver::archivedDataWithRootObject(*user, WZTUser::className);
    return QCryptographicHash::hash(archive.value(), QCryptographicHash::Sha1).toHex();
}

} // namespace

void Journal::note(const QByteArray &line)
{
    // In one piece, so that lines of several threads do not mix.
    const QByteArray whole = line + '\n';
    if (::write(STDOUT_FILENO, whole.constData(), static_cast<size_t>(whole.size())) < 0) {
        std::_Exit(EXIT_FAILURE);
    }
}

void Journal::countObjects()
{
    qtHookData[3] = reinterpret_cast<quintptr>(&made);
    qtHookData[4] = reinterpret_cast<quintptr>(&destroyed);
}

void Journal::noteHome()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QFile::ReadOnly)) {
        return;
    }
    // Without mapped files: fonts are mapped one by one as they are used.
    const QByteArrayList sizes = file.readAll().split(' ');
    const qint64 pages = sizes.at(1).toLongLong() - sizes.at(2).toLongLong();
    note("home " + QByteArray::number(living) + ' '
         + QByteArray::number(pages * ::sysconf(_SC_PAGESIZE) / 1024));
}

Journal::Session::Session(WZTSession &session, QString disk)
    : m_session(session), m_disk(std::move(disk))
{
    install(this);
    note("found " + nameOf(currentUser()));
}

void Journal::Session::setCurrentUser(const WZTUser &user)
{
    // A user who cannot be kept must not leave the previous one in place.
    const QByteArray kept = m_filled ? "-" : nameOf(user);
    if (m_filled) {
        m_filled->refill();
    }
    note("may " + kept);
    m_session.setCurrentUser(user);
    note("is " + kept);
    if (m_filled) {
        // A killed process may have left a file that gave way to this user.
        note("may " + nameOf(user));
    }
}

void Journal::Session::logout()
{
    note("may -");
    m_session.logout();
    note("is -");
}
