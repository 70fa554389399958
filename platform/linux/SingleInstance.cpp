// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SingleInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int handOverMilliseconds = 2000;

struct TokenName {
    QLatin1StringView platformData;
    const char *environment;
};

constexpr std::array tokenNames{
    TokenName{"activation-token"_L1, "XDG_ACTIVATION_TOKEN"},
    TokenName{"desktop-startup-id"_L1, "DESKTOP_STARTUP_ID"},
};

QVariantMap platformDataFromEnvironment()
{
    QVariantMap data;
    for (const TokenName &name : tokenNames) {
        if (const QString token = qEnvironmentVariable(name.environment); !token.isEmpty())
            data.insert(name.platformData, token);
    }
    return data;
}

// Qt takes the token from the environment when a window asks to come to the front.
void setEnvironment(const QVariantMap &platformData)
{
    for (const TokenName &name : tokenNames) {
        if (const QString token = platformData.value(name.platformData).toString();
            !token.isEmpty()) {
            qputenv(name.environment, token.toUtf8());
        }
    }
}

} // namespace

SingleInstance::SingleInstance(const QDBusConnection &bus, const QString &applicationId,
                               std::function<void(const QStringList &)> opened)
    : m_bus(bus),
      m_name(applicationId),
      m_path(u'/' + QString(applicationId).replace(u'.', u'/').replace(u'-', u'_')),
      m_opened(std::move(opened))
{
    // Before the name: whoever sees the name may call at once.
    m_bus.registerObject(m_path, this, QDBusConnection::ExportAllSlots);
}

SingleInstance::~SingleInstance()
{
    if (QDBusConnectionInterface *daemon = m_bus.interface())
        daemon->unregisterService(m_name);
    m_bus.unregisterObject(m_path);
}

bool SingleInstance::claimOrHandOver(const QStringList &urls)
{
    // The owner may end while it is being asked.
    return claim() || (!handOver(urls) && claim());
}

bool SingleInstance::claim()
{
    QDBusConnectionInterface *daemon = m_bus.interface();
    return daemon && daemon->registerService(m_name) == QDBusConnectionInterface::ServiceRegistered;
}

bool SingleInstance::handOver(const QStringList &urls)
{
    const bool open = !urls.isEmpty();
    QDBusMessage message = QDBusMessage::createMethodCall(
        m_name, m_path, u"org.freedesktop.Application"_s, open ? u"Open"_s : u"Activate"_s);
    if (open)
        message << urls;
    message << platformDataFromEnvironment();
    message.setAutoStartService(false);
    return m_bus.call(message, QDBus::Block, handOverMilliseconds).type()
        == QDBusMessage::ReplyMessage;
}

void SingleInstance::Activate(const QVariantMap &platformData)
{
    Open({}, platformData);
}

void SingleInstance::Open(const QStringList &urls, const QVariantMap &platformData)
{
    setEnvironment(platformData);
    m_opened(urls);
}

// The desktop entry has no actions: whoever asks for one gets the application.
void SingleInstance::ActivateAction(const QString & /*name*/, const QVariantList & /*parameter*/,
                                    const QVariantMap &platformData)
{
    Open({}, platformData);
}
