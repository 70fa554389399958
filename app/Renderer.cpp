// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/Renderer.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !hasGraphicsHardware())
        qputenv("QT_QUICK_BACKEND", "software");
}
