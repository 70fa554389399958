// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/Links.h"

#include "platform/files/Module.h"
#include "platform/linux/LinksModule.h"

#include <QByteArray>
#include <QString>

namespace {

/// Stands on GIO.
constexpr const char *gioModule = "wzt-links.so";

} // namespace

bool Links::hasHandler(const QString &url)
{
    auto *hasHandler = Module::function<LinkHasHandler>(gioModule, "linkHasHandler");
    return hasHandler && hasHandler(url.toUtf8());
}

void Links::open(const QString &url)
{
    if (auto *open = Module::function<OpenLink>(gioModule, "openLink")) {
        open(url.toUtf8());
    }
}
