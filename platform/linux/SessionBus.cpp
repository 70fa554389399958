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

// The address of a running bus: from the environment, or the socket in the runtime folder. The bus
// libraries would also start a new one.
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

// Otherwise other libraries of this process (GIO when it launches a handler) would wait for a bus
// that does not answer, or start a new one.
void disable()
{
    qputenv(addressVariable, "disabled:");
}

QDBusConnection connectToSession()
{
    const QString name = u"wzt-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!knownAddress().isEmpty()) {
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    }
    disable();
    return QDBusConnection(name);
}

} // namespace

bool SessionBus::isDisabled()
{
    return qgetenv(addressVariable) == "disabled:";
}

bool SessionBus::probe(QDeadlineTimer deadline)
{
    const bool alive = busAnswers(knownAddress(), deadline);
    if (!alive) {
        disable();
    }
    return alive;
}

SessionBus::SessionBus() : m_connection(connectToSession()) {}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(m_connection.name());
}
