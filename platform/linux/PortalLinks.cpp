// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalLinks.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// The portal only looks the scheme up, but may have to be started first. A dead one would keep the
// main thread for the 25 seconds of a D-Bus call.
constexpr int patience = 1000; // ms

QDBusMessage portalCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.portal.OpenURI"_s, method);
    message.setArguments(arguments);
    return message;
}

} // namespace

bool PortalLinks::areUsed()
{
    return QFile::exists(u"/.flatpak-info"_s) || qgetenv("GTK_USE_PORTAL").startsWith('1');
}

bool PortalLinks::hasHandler(const QDBusConnection &bus, const QString &url)
{
    const qsizetype end = url.indexOf(u':');
    if (end <= 0) {
        return false;
    }
    const QVariantList arguments{url.first(end).toLower(), QVariantMap()};
    const QDBusMessage reply =
        bus.call(portalCall(u"SchemeSupported"_s, arguments), QDBus::Block, patience);
    return reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool();
}

// GIO would connect to the bus once more and read the target to guess its type, and it may write
// the URL in another way.
void PortalLinks::open(const QDBusConnection &bus, const QString &url)
{
    const QString noWindow;
    bus.send(portalCall(u"OpenURI"_s, {noWindow, url, QVariantMap()}));
}
