// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class QDBusConnection;
class QString;

/// Links to other applications from inside a Flatpak, through the desktop portal. Interface: the
/// desktop portal's documentation, org.freedesktop.portal.OpenURI. Main thread only.
namespace PortalLinks {

/// Whether links without a handler go to the portal: inside a Flatpak, where no handler of the
/// desktop is seen, or if GTK_USE_PORTAL begins with 1. The rule is GIO's.
[[nodiscard]] bool areUsed();

/// Whether an application of the desktop handles the scheme of `url`; false for a text without a
/// scheme, and for a portal before version 5 of the interface. Waits for the portal for a second
/// at most.
[[nodiscard]] bool hasHandler(const QDBusConnection &bus, const QString &url);

/// Asks the portal to open the unchanged `url`. Does not wait for it. Ignores failures; the portal
/// may ask the person which application to use.
void open(const QDBusConnection &bus, const QString &url);

} // namespace PortalLinks
