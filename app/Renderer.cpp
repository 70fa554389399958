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

constexpr auto variable = "QT_QUICK_BACKEND";

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
    // Not by the variable: programs that a link starts would inherit it.
    if (!qEnvironmentVariableIsSet(variable) && !hasGraphicsHardware())
        QQuickWindow::setSceneGraphBackend(u"software"_s);
}

void Renderer::fallBack()
{
    QFile commandLine(u"/proc/self/cmdline"_s);
    if (!commandLine.open(QFile::ReadOnly))
        return;
    QByteArrayList arguments = commandLine.readAll().split('\0');
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    pointers.back() = nullptr; // the last one ends with a null character as well
    qputenv(variable, "software");
    execv("/proc/self/exe", pointers.data());
}
