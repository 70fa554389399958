// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// The module behind Links: GIO is loaded when a link is first looked at.

#include "platform/linux/LinksModule.h"

#include <QByteArray>

#include <gio/gio.h>

#include <memory>
#include <type_traits>

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T>
using Owned = std::unique_ptr<T, Unref>;

Owned<GAppInfo> handlerOf(const QByteArray &url)
{
    const std::unique_ptr<char, decltype(&g_free)> scheme(g_uri_parse_scheme(url.constData()),
                                                          g_free);
    return Owned<GAppInfo>(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get()) : nullptr);
}

// Removes the variables that concern only this process from the handler's environment.
Owned<GAppLaunchContext> cleanContext()
{
    Owned<GAppLaunchContext> context(g_app_launch_context_new());
    for (const char *name :
         {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID", "QT_QPA_UPDATE_IDLE_TIME"}) {
        g_app_launch_context_unsetenv(context.get(), name);
    }
    if (qgetenv("DBUS_SESSION_BUS_ADDRESS") == "disabled:") {
        g_app_launch_context_unsetenv(context.get(), "DBUS_SESSION_BUS_ADDRESS");
    }
    return context;
}

} // namespace

extern "C" Q_DECL_EXPORT bool linkHasHandler(const QByteArray &url)
{
    return handlerOf(url) != nullptr;
}

// g_app_info_launch_default_for_uri would read the target to guess its type, and open a portal's
// dialog for a scheme without a handler.
extern "C" Q_DECL_EXPORT void openLink(const QByteArray &url)
{
    const Owned<GAppInfo> handler = handlerOf(url);
    if (!handler) {
        return;
    }
    QByteArray bytes = url;
    GList urls{bytes.data(), nullptr, nullptr};
    g_app_info_launch_uris(handler.get(), &urls, cleanContext().get(), nullptr);
}

static_assert(std::is_same_v<decltype(linkHasHandler), LinkHasHandler>);
static_assert(std::is_same_v<decltype(openLink), OpenLink>);
