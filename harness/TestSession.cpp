// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestSession.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

TestSession::TestSession()
{
    const QString runtime = m_home.filePath(u"runtime"_s);
    QDir().mkdir(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", QFile::encodeName(home()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    const QByteArray address = "unix:path=" + QFile::encodeName(runtime) + "/bus";
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qunsetenv("GTK_USE_PORTAL");
}

std::unique_ptr<TestProcess> TestSession::startBus() const
{
    QFile file(m_home.filePath(u"bus.conf"_s));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("<busconfig><type>session</type><listen>" + qgetenv("DBUS_SESSION_BUS_ADDRESS")
                   + "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                     "<allow receive_sender=\"*\"/><allow own=\"*\"/>"
                     "<deny own=\"example.wzt-test.Refused\"/></policy></busconfig>");
        file.close();
    }
    auto bus = std::make_unique<TestProcess>();
    bus->startAndRead(u"dbus-daemon"_s,
                      {u"--nofork"_s, u"--print-address"_s, "--config-file="_L1 + file.fileName()});
    return bus;
}
