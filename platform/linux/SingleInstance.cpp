// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SingleInstance.h"

#include <QDebug>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

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
        if (const QString token = qEnvironmentVariable(name.environment); !token.isEmpty()) {
            data.insert(name.platformData, token);
        }
    }
    return data;
}

/// The tokens' entries of the environment. Other threads read the environment for their own
/// variables, so its list never changes once they run: only the values of these entries do.
constexpr size_t entryLength = 512;
constinit std::array<std::array<char, entryLength>, tokenNames.size()> entries{};

void setToken(size_t i, const QByteArray &token)
{
    const QByteArray entry = tokenNames[i].environment + ('=' + token);
    if (static_cast<size_t>(entry.size()) < entryLength) {
        std::copy_n(entry.constData(), entry.size() + 1, entries[i].data());
    }
}

/// Has the tokens in the environment while it lives: Qt takes one from there when a window asks to
/// come to the front.
class EnvironmentTokens {
public:
    explicit EnvironmentTokens(const QVariantMap &platformData)
    {
        for (size_t i = 0; i < tokenNames.size(); ++i) {
            setToken(i, platformData.value(tokenNames[i].platformData).toString().toUtf8());
        }
    }
    ~EnvironmentTokens()
    {
        for (size_t i = 0; i < tokenNames.size(); ++i) {
            setToken(i, {});
        }
    }
    Q_DISABLE_COPY_MOVE(EnvironmentTokens)
};

} // namespace

void SingleInstance::prepareEnvironment()
{
    for (size_t i = 0; i < tokenNames.size(); ++i) {
        setToken(i, {});
        setToken(i, qgetenv(tokenNames[i].environment));
        ::putenv(entries[i].data());
    }
}

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
        // Unless the owner ended while it was asked.
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
    message << platformDataFromEnvironment();
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
        const EnvironmentTokens tokens(platformData);
        m_opened(urls);
    }
    scheduleMemoryTrim();
}

// A call may be long, and the allocator keeps what it once had. A second later the bus connection's
// thread has freed its copy too.
void SingleInstance::scheduleMemoryTrim()
{
    if (std::exchange(m_isTrimScheduled, true)) {
        return;
    }
    const auto trim = [this] {
        m_isTrimScheduled = false;
        malloc_trim(0);
    };
    QTimer::singleShot(std::chrono::seconds(1), this, trim);
}

// The desktop entry has no actions: whoever asks for one gets the application.
void SingleInstance::ActivateAction(const QString & /*name*/, const QVariantList & /*parameter*/,
                                    const QVariantMap &platformData)
{
    Open({}, platformData);
}
