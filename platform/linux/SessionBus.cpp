// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SessionBus.h"

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

// The two places where a running bus is found. The bus libraries know a third: to start one.
bool busIsThere()
{
    if (!qEnvironmentVariableIsEmpty(addressVariable))
        return true;
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && isOwnSocket(folder + "/bus");
}

QDBusConnection connectToSession()
{
    const QString name = u"wzt-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (busIsThere())
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    // Other libraries of this process (GIO when it launches a handler) would start a bus of their
    // own.
    qputenv(addressVariable, "disabled:");
    return QDBusConnection(name);
}

} // namespace

SessionBus::SessionBus() : m_connection(connectToSession()) {}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(m_connection.name());
}
