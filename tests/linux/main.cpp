// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "harness/TestSession.h"
#include "platform/linux/LinuxHost.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// Runs the program as a later start of the application: uses every function of the port, then
// prints whether it is the single instance.
int startApplication(QStringList arguments, std::chrono::milliseconds remainingTime)
{
    LinuxHost host(arguments.takeFirst(), remainingTime);
    host.observeAppearance([](const DesktopAppearance &) {});
    host.impactOccurred(UIImpactFeedbackStyle::Light);
    host.openURL(u"start://"_s);
    return std::puts(host.claimSingleInstance(arguments, {}) ? "only" : "second") < 0 ? 1 : 0;
}

// Opens a link, then prints whether anyone handles it.
int openLink(const QString &url)
{
    LinuxHost host(u"example.wzt.Test"_s);
    host.openURL(url);
    return std::puts(host.canOpenURL(url) ? "handled" : "unhandled") < 0 ? 1 : 0;
}

// Prints the text scale that is told once the desktop's settings are known.
int printTextScale(const QGuiApplication &application)
{
    LinuxHost host(u"example.wzt.Test"_s);
    host.observeAppearance([](const DesktopAppearance &appearance) {
        if (appearance.reduceMotion) {
            std::printf("%g\n", appearance.textScale);
            QCoreApplication::quit();
        }
    });
    return application.exec();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--start") == 0) {
        const auto remainingTime = LinuxHost::prepare();
        const QGuiApplication application(argc, argv);
        return startApplication(QCoreApplication::arguments().sliced(2), remainingTime);
    }
    if (argc == 2 && qstrcmp(argv[1], "--scale") == 0) {
        (void)LinuxHost::prepare();
        const QGuiApplication application(argc, argv);
        return printTextScale(application);
    }
    if (argc == 3 && qstrcmp(argv[1], "--open") == 0) {
        (void)LinuxHost::prepare();
        const QGuiApplication application(argc, argv);
        return openLink(QCoreApplication::arguments().constLast());
    }
    const TestSession session;
    (void)LinuxHost::prepare();
    qputenv("XDG_DATA_DIRS", QFile::encodeName(session.home()));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(session.home()));
    const QGuiApplication application(argc, argv);
    const auto bus = session.startBus();
    return TestRunner::run();
}
