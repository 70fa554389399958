// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxHost.h"
#include "platform/uikit/UIApplication.h"
#include "screens/WZTRootViewController.h"
#include "tests/support/TestRunner.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

// The program as a later start of the application: uses all of the port, then says what it is.
int startApplication(QStringList arguments)
{
    LinuxHost host(arguments.takeFirst());
    host.observeAppearance([](const UIAppearance &) {});
    host.impactOccurred(UIImpactFeedbackStyle::Light);
    host.openURL(u"start://"_s);
    return std::puts(host.becomeOnlyInstance(arguments, {}) ? "only" : "second") < 0 ? 1 : 0;
}

// Every link of Home, one after the other.
int openLinks()
{
    LinuxHost host(u"example.wzt.Test"_s);
    const UIApplication application(host);
    WZTRootViewController home;
    home.addPublicRepo();
    home.addSubscriberRepo();
    home.joinDiscord();
    return 0;
}

// GIO and libdbus look at these once, so they stand before anything else.
void setUpEnvironment(const QByteArray &home)
{
    qputenv("HOME", home);
    qputenv("XDG_RUNTIME_DIR", home + "/runtime");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home + "/runtime/bus");
    qputenv("XDG_DATA_DIRS", home);
    qputenv("XDG_CONFIG_DIRS", home);
}

// A bus that starts no services.
void startBus(QProcess &daemon, const QString &folder)
{
    QFile file(folder + "/bus.conf"_L1);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("<busconfig><type>session</type><listen>unix:path=" + QFile::encodeName(folder)
                   + "/bus</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                     "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
        file.close();
    }
    // Ends with the test, however that ends.
    daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    daemon.start(u"dbus-daemon"_s,
                 {u"--nofork"_s, u"--print-address"_s, "--config-file="_L1 + file.fileName()});
    if (!daemon.waitForReadyRead())
        qFatal("dbus-daemon does not start");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--start") == 0) {
        const QGuiApplication application(argc, argv);
        return startApplication(QCoreApplication::arguments().sliced(2));
    }
    if (argc > 1 && qstrcmp(argv[1], "--open-links") == 0) {
        const QGuiApplication application(argc, argv);
        return openLinks();
    }
    const QTemporaryDir home;
    const QString runtime = home.filePath(u"runtime"_s);
    QDir().mkdir(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    setUpEnvironment(QFile::encodeName(home.path()));
    const QGuiApplication application(argc, argv);
    QProcess daemon;
    startBus(daemon, runtime);
    const int failures = TestRunner::run();
    daemon.terminate();
    daemon.waitForFinished();
    return failures;
}
