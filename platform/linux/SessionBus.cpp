// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SessionBus.h"

#include "platform/linux/BusProbe.h"

#include <QUuid>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *addressVariable = "DBUS_SESSION_BUS_ADDRESS";

bool isOwnSocket(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 && S_ISSOCK(status.st_mode)
        && status.st_uid == ::getuid();
}

// The address of a running bus: from the environment, or the socket in the runtime folder. Empty
// if none is known.
QByteArray knownAddress()
{
    const QByteArray address = qgetenv(addressVariable);
    if (!address.isEmpty()) {
        return address;
    }
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray path = folder + "/bus";
    return !folder.isEmpty() && isOwnSocket(path) ? "unix:path=" + path : QByteArray();
}

QDBusConnection connectToSession()
{
    const QString name = u"wzt-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
}

} // namespace

bool SessionBus::isDisabled()
{
    return qgetenv(addressVariable) == "disabled:";
}

// The libraries of this process would wait for a bus that does not answer, and start one where none
// is running.
bool SessionBus::probe(QDeadlineTimer deadline)
{
    const QByteArray address = knownAddress();
    const bool alive = busAnswers(address, deadline);
    if (!alive || address.isEmpty()) {
        qputenv(addressVariable, "disabled:");
    }
    return alive;
}

SessionBus::SessionBus() : m_connection(connectToSession()) {}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(m_connection.name());
}
