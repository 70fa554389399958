// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SingleInstance.h"

#include "platform/linux/ActivationTokens.h"

#include <QDebug>

#include <utility>

#include <malloc.h>

using namespace Qt::StringLiterals;

SingleInstance::SingleInstance(const QDBusConnection &bus, const QString &applicationId,
                               std::function<void(const QStringList &)> opened)
    : m_bus(bus),
      m_name(applicationId),
      m_path(u'/' + QString(applicationId).replace(u'.', u'/').replace(u'-', u'_')),
      m_opened(std::move(opened))
{
    // A call may be large, and the allocator keeps freed memory. The thread of the bus connection
    // frees its copy within a second, or on a busy machine within some more.
    using namespace std::chrono_literals;
    for (size_t i = 0; i < std::size(m_trims); ++i) {
        m_trims[i].setSingleShot(true);
        m_trims[i].setInterval(i == 0 ? 1s : 10s);
        m_trims[i].callOnTimeout([] { malloc_trim(0); });
    }
    // Before the name is claimed: its first calls may come at once.
    m_bus.registerObject(m_path, this, QDBusConnection::ExportAllSlots);
}

SingleInstance::~SingleInstance()
{
    m_bus.send(busCall(u"ReleaseName"_s, {m_name}));
    m_bus.unregisterObject(m_path);
}

bool SingleInstance::claimOrHandOver(const QStringList &urls, QDeadlineTimer deadline)
{
    const Claim claimed = claim(deadline);
    if (claimed == Claim::OwnedByAnother && handOver(urls, deadline)) {
        return false;
    }
    if (claimed == Claim::Refused) {
        qInfo("The session bus does not give the name: this start is on its own.");
    } else if (claimed == Claim::OwnedByAnother && claim(deadline) != Claim::Owner) {
        // The owner may have ended during the call, so the name is claimed again.
        qInfo("The application that runs does not answer: this start is on its own.");
    }
    return true;
}

QDBusMessage SingleInstance::busCall(const QString &method, const QVariantList &arguments) const
{
    const QString bus = u"org.freedesktop.DBus"_s;
    QDBusMessage message =
        QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, method);
    message.setArguments(arguments);
    return message;
}

SingleInstance::Claim SingleInstance::claim(QDeadlineTimer deadline)
{
    constexpr uint doNotQueue = 4;
    constexpr uint owner = 1;
    constexpr uint ownedByAnother = 3;
    constexpr uint alreadyOwner = 4;
    const QDBusMessage reply = m_bus.call(busCall(u"RequestName"_s, {m_name, doNotQueue}),
                                          QDBus::Block, static_cast<int>(deadline.remainingTime()));
    const uint code =
        reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0).toUInt() : 0;
    return code == owner || code == alreadyOwner ? Claim::Owner
        : code == ownedByAnother                 ? Claim::OwnedByAnother
                                                 : Claim::Refused;
}

bool SingleInstance::handOver(const QStringList &urls, QDeadlineTimer deadline)
{
    const bool open = !urls.isEmpty();
    QDBusMessage message = QDBusMessage::createMethodCall(
        m_name, m_path, u"org.freedesktop.Application"_s, open ? u"Open"_s : u"Activate"_s);
    if (open) {
        message << urls;
    }
    message << ActivationTokens::platformData();
    message.setAutoStartService(false);
    return m_bus.call(message, QDBus::Block, static_cast<int>(deadline.remainingTime())).type()
        == QDBusMessage::ReplyMessage;
}

void SingleInstance::Activate(const QVariantMap &platformData)
{
    Open({}, platformData);
}

void SingleInstance::Open(const QStringList &urls, const QVariantMap &platformData)
{
    {
        const ActivationTokens::Scope tokens(platformData);
        m_opened(urls);
    }
    for (QTimer &trim : m_trims) {
        if (!trim.isActive()) {
            trim.start();
        }
    }
}

// The desktop entry has no actions, so a call of one only activates the application.
void SingleInstance::ActivateAction(const QString & /*name*/, const QVariantList & /*parameter*/,
                                    const QVariantMap &platformData)
{
    Open({}, platformData);
}
