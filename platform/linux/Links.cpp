// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/Links.h"

#include "platform/files/Module.h"

#include <QByteArray>
#include <QString>

namespace {

/// Loads GIO. Its functions take the URL in UTF-8.
constexpr const char *gioModule = "wzt-links.so";

} // namespace

bool Links::hasHandler(const QString &url)
{
    auto *hasHandler = Module::function<bool(const QByteArray &)>(gioModule, "linkHasHandler");
    return hasHandler && hasHandler(url.toUtf8());
}

void Links::open(const QString &url)
{
    if (auto *open = Module::function<void(const QByteArray &)>(gioModule, "openLink")) {
        open(url.toUtf8());
    }
}
