// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/AccessibilityBus.h"

#include <QDBusArgument>
#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace {

const QString connectionName = u"accessibility"_s;
const Accessible registry{u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s};
const Accessible keyboard{registry.service, u"/org/a11y/atspi/registry/deviceeventcontroller"_s};

const QDBusArgument &operator>>(const QDBusArgument &argument, Accessible &object)
{
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> object.service >> path;
    argument.endStructure();
    object.path = path.path();
    return argument;
}

// An action's first text is its name, the others are translations of it and its keys.
struct Action {
    QString name;
};

const QDBusArgument &operator>>(const QDBusArgument &argument, Action &action)
{
    QString other;
    argument.beginStructure();
    argument >> action.name >> other >> other;
    argument.endStructure();
    return argument;
}

template <class Item>
QList<Item> listOf(const QVariantList &results)
{
    QList<Item> items;
    if (results.isEmpty())
        return items;
    const auto argument = results[0].value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        Item item;
        argument >> item;
        items.append(item);
    }
    argument.endArray();
    return items;
}

} // namespace

AccessibilityBus::AccessibilityBus(const QString &address)
    : m_connection(QDBusConnection::connectToBus(address, connectionName))
{
}

AccessibilityBus::~AccessibilityBus()
{
    QDBusConnection::disconnectFromBus(connectionName);
}

QVariantList AccessibilityBus::call(const Accessible &object, const QString &interface,
                                    const QString &method, const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(object.service, object.path,
                                                          "org.a11y.atspi."_L1 + interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = m_connection.call(message);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments() : QVariantList();
}

QVariant AccessibilityBus::property(const Accessible &object, const QString &interface,
                                    const QString &name) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        object.service, object.path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << QString("org.a11y.atspi."_L1 + interface) << name;
    return m_connection.call(message).arguments().value(0).value<QDBusVariant>().variant();
}

QList<Accessible> AccessibilityBus::children(const Accessible &object) const
{
    return listOf<Accessible>(call(object, u"Accessible"_s, u"GetChildren"_s));
}

AccessibleFacts AccessibilityBus::facts(const Accessible &object) const
{
    const QString accessible = u"Accessible"_s;
    const auto states = listOf<quint32>(call(object, accessible, u"GetState"_s));
    AccessibleFacts facts{
        .role = call(object, accessible, u"GetRole"_s).value(0).toUInt(),
        .name = property(object, accessible, u"Name"_s).toString(),
        .description = property(object, accessible, u"Description"_s).toString(),
        .text = call(object, u"Text"_s, u"GetText"_s, {0, -1}).value(0).toString(),
        .states = states.value(0) | quint64{states.value(1)} << 32,
        .actions = {},
    };
    for (const auto &action : listOf<Action>(call(object, u"Action"_s, u"GetActions"_s)))
        facts.actions.append(action.name);
    return facts;
}

Accessible AccessibilityBus::desktop()
{
    return {registry.service, u"/org/a11y/atspi/accessible/root"_s};
}

void AccessibilityBus::observeStates(QObject *receiver, const char *slot)
{
    call(registry, u"Registry"_s, u"RegisterEvent"_s,
         {u"object:state-changed"_s, QStringList(), QString()});
    m_connection.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, receiver,
                         slot);
}

void AccessibilityBus::generate(int code, const QString &text, uint kind) const
{
    call(keyboard, u"DeviceEventController"_s, u"GenerateKeyboardEvent"_s, {code, text, kind});
}
