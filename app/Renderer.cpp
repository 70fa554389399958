// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/Renderer.h"

#include <QDir>
#include <QQuickWindow>

#include <algorithm>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The environment variable that marks a program as restarted without hardware.
constexpr auto restartMark = "WZT_SOFTWARE_RENDERER";

bool hasGraphicsHardware()
{
    const QFileInfoList nodes = QDir(u"/dev/dri"_s).entryInfoList({u"renderD*"_s}, QDir::System);
    return std::any_of(nodes.begin(), nodes.end(), [](const QFileInfo &node) {
        return node.isReadable() && node.isWritable();
    });
}

} // namespace

void Renderer::choose()
{
    const bool fellBack = qEnvironmentVariableIsSet(restartMark);
    qunsetenv(restartMark);
    // Programs that a link starts would inherit Qt's variable for this.
    if (fellBack || (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !hasGraphicsHardware())) {
        QQuickWindow::setSceneGraphBackend(u"software"_s);
    }
    // Qt waits 5 ms for further changes before it draws, by a timer, which wakes the processor a
    // second time. Animations change everything at the same time, and the window system joins
    // movements. GioLinks removes the variable for other programs.
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME")) {
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    }
}

void Renderer::fallBack()
{
    QFile commandLine(u"/proc/self/cmdline"_s);
    if (!commandLine.open(QFile::ReadOnly)) {
        return;
    }
    QByteArrayList arguments = commandLine.readAll().split('\0');
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.back() = nullptr; // the empty piece after the last null character
    qputenv(restartMark, "1");
    const QByteArray program = QFile::encodeName(QFile::symLinkTarget(u"/proc/self/exe"_s));
    execv(program.constData(), pointers.data());
    execv("/proc/self/exe", pointers.data()); // works after the file was replaced
}
