// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

/// A service on the test's bus during its lifetime: records calls, and gives the same answer to
/// all, or without a value the error of an unknown method.
class FakeService : public QDBusVirtualObject {
public:
    FakeService(const QString &name, const QString &path, const QVariant &reply)
        : bus(connection(name)), m_reply(reply)
    {
        bus.registerVirtualObject(path, this);
        bus.registerService(name);
    }
    ~FakeService() override { QDBusConnection::disconnectFromBus(bus.name()); }
    Q_DISABLE_COPY_MOVE(FakeService)

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        calls.append(QVariantList{message.interface(), message.member()} + message.arguments());
        return isMute || (m_reply.isValid() && bus.send(message.createReply(m_reply)));
    }
    [[nodiscard]] QString introspect(const QString &) const override { return {}; }

    QDBusConnection bus;
    /// Interface, method and arguments of each call.
    QList<QVariantList> calls;
    /// Then it answers nothing at all.
    bool isMute = false;

private:
    static QDBusConnection connection(const QString &name)
    {
        const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
        return QDBusConnection::connectToBus(address, name);
    }

    QVariant m_reply;
};
