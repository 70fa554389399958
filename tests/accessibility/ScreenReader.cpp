// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/ScreenReader.h"

#include <QDBusArgument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString registry = u"org.a11y.atspi.Registry"_s;

constexpr quint64 state(int number)
{
    return quint64{1} << number;
}

// As AT-SPI numbers them.
constexpr quint64 editable = state(7);
constexpr quint64 enabled = state(8);
constexpr quint64 focusable = state(11);
constexpr quint64 hasFocus = state(12);
constexpr quint64 selectable = state(22);
constexpr quint64 selected = state(23);
constexpr quint64 sensitive = state(24);
constexpr quint64 showing = state(25);
constexpr quint64 visible = state(30);

constexpr quint32 secret = 40;

// A role as AT-SPI numbers it, its name here, and what an item of that role must have.
struct Role {
    quint32 number;
    QLatin1StringView name;
    bool named = true;
    quint64 states = 0;
    QLatin1StringView action = {};
};

// Only holds others. Since Qt 6.8 every delegate of a list view is one, even an ignored one.
constexpr quint32 filler = 20;
constexpr quint32 application = 75;
constexpr Role roles[] = {
    {2, "alert"_L1},
    {16, "dialog"_L1},
    {23, "window"_L1},
    {29, "label"_L1},
    {31, "list"_L1, true, focusable},
    {32, "row"_L1, true, focusable},
    {35, "item"_L1, true, focusable, "Press"_L1},
    {37, "tab"_L1, true, focusable | selectable, "Press"_L1},
    {38, "tabs"_L1, false},
    {secret, "secret"_L1, true, focusable | editable, "SetFocus"_L1},
    {41, "menu"_L1},
    {42, "progress"_L1},
    {43, "button"_L1, true, focusable, "Press"_L1},
    {61, "field"_L1, true, focusable | editable, "SetFocus"_L1},
    {83, "heading"_L1},
};

} // namespace

ScreenReader::ScreenReader(const QString &address)
    : m_bus(QDBusConnection::connectToBus(address, u"accessibility"_s))
{
    call({registry, u"/org/a11y/atspi/registry"_s}, u"Registry"_s, u"RegisterEvent"_s,
         {u"object:state-changed"_s, QStringList(), QString()});
    m_bus.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                  SLOT(stateChanged(QDBusMessage)));
}

QVariantList ScreenReader::call(const Node &node, const QString &interface, const QString &method,
                                const QVariantList &arguments) const
{
    auto message = QDBusMessage::createMethodCall(node.service, node.path,
                                                  "org.a11y.atspi."_L1 + interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(message);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments() : QVariantList();
}

QVariant ScreenReader::property(const Node &node, const QString &interface,
                                const QString &name) const
{
    auto message = QDBusMessage::createMethodCall(node.service, node.path,
                                                  u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << QString("org.a11y.atspi."_L1 + interface) << name;
    return m_bus.call(message).arguments().value(0).value<QDBusVariant>().variant();
}

void ScreenReader::stateChanged(const QDBusMessage &event)
{
    const bool comes = event.arguments().value(1).toBool();
    if (event.arguments().value(0) == u"focused"_s && (comes || event.path() == m_focused)) {
        m_focused = comes ? event.path() : QString();
    }
}

void ScreenReader::collect(Node node, QList<Node> &found) const
{
    const QString accessible = u"Accessible"_s;
    const auto states = qdbus_cast<QList<quint32>>(call(node, accessible, u"GetState"_s).value(0));
    node.states = states.value(0) | quint64{states.value(1)} << 32;
    if (!(node.states & showing)) {
        return;
    }
    node.role = call(node, accessible, u"GetRole"_s).value(0).toUInt();
    node.name = property(node, accessible, u"Name"_s).toString();
    node.description = property(node, accessible, u"Description"_s).toString();
    node.text = call(node, u"Text"_s, u"GetText"_s, {0, -1}).value(0).toString();
    const int actions = property(node, u"Action"_s, u"NActions"_s).toInt();
    for (int i = 0; i < actions; ++i) {
        node.actions.append(call(node, u"Action"_s, u"GetName"_s, {i}).value(0).toString());
    }
    const bool isPassedOver =
        node.role == application || (node.role == filler && node.name.isEmpty());
    if (!isPassedOver) {
        found.append(node);
    }
    for (const Node &child : children(node)) {
        collect(child, found);
    }
}

QList<ScreenReader::Node> ScreenReader::children(const Node &node) const
{
    using Addresses = QList<std::pair<QString, QDBusObjectPath>>;
    QList<Node> found;
    const QVariant addresses = call(node, u"Accessible"_s, u"GetChildren"_s).value(0);
    for (const auto &[service, path] : qdbus_cast<Addresses>(addresses)) {
        found.append({service, path.path()});
    }
    return found;
}

QList<ScreenReader::Node> ScreenReader::nodes() const
{
    QList<Node> found;
    for (const Node &running : children({registry, u"/org/a11y/atspi/accessible/root"_s})) {
        collect(running, found);
    }
    return found;
}

bool ScreenReader::isFocused(const Node &node) const
{
    // The first item with the focus may have announced it before this reader listened.
    return (node.states & hasFocus) && (m_focused.isEmpty() || node.path == m_focused);
}

QString ScreenReader::describe(const Node &node) const
{
    const auto *role = std::ranges::find(roles, node.role, &Role::number);
    if (role == std::end(roles)) {
        return u"role %1, %2"_s.arg(node.role).arg(node.name);
    }
    QString line = role->name;
    if (!node.name.isEmpty()) {
        line += u' ' + node.name;
    }
    // Of a secret some releases of Qt tell as many bullets as it is long, others nothing.
    QString text = node.text;
    if (node.role == secret) {
        text.remove(u'\u2022');
    }
    if (!text.isEmpty()) {
        line += u": "_s + text;
    }
    if (!node.description.isEmpty() && node.description != node.name) {
        line += u", "_s + node.description;
    }
    if (node.states & selected) {
        line += u", selected"_s;
    }
    if (role->action.isEmpty() && node.actions.contains(u"Press"_s)) {
        line += u", to press"_s;
    }
    if (node.states & hasFocus) {
        line += isFocused(node) ? u", focused"_s : u", focused as well"_s;
    }
    const quint64 missing = (role->states | visible | enabled | sensitive) & ~node.states;
    if (role->named && node.name.isEmpty()) {
        line += u" (no name)"_s;
    }
    if (missing) {
        line += u" (not in states %1)"_s.arg(missing, 0, 16);
    }
    if (!role->action.isEmpty() && !node.actions.contains(role->action)) {
        line += u" (no action %1)"_s.arg(role->action);
    }
    return line;
}

QStringList ScreenReader::screen() const
{
    QStringList lines;
    for (const Node &node : nodes()) {
        lines.append(describe(node));
    }
    return lines;
}

QString ScreenReader::focused() const
{
    const QList<Node> all = nodes();
    const auto found =
        std::ranges::find_if(all, [this](const Node &node) { return isFocused(node); });
    return found == all.end() ? QString() : describe(*found);
}

ScreenReader::Node ScreenReader::find(const QString &action, const QString &name) const
{
    const QList<Node> all = nodes();
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](const Node &node) {
        return node.name == name && node.actions.contains(action);
    });
    return found == all.rend() ? Node() : *found;
}

bool ScreenReader::act(const QString &action, const QString &name) const
{
    const Node node = find(action, name);
    const auto index = static_cast<int>(node.actions.indexOf(action));
    return index >= 0 && call(node, u"Action"_s, u"DoAction"_s, {index}).value(0).toBool();
}

void ScreenReader::generate(int symbol, const QString &text, quint32 kind) const
{
    call({registry, u"/org/a11y/atspi/registry/deviceeventcontroller"_s},
         u"DeviceEventController"_s, u"GenerateKeyboardEvent"_s, {symbol, text, kind});
}

int ScreenReader::caret(const QString &name) const
{
    const Node field = find(u"SetFocus"_s, name);
    return field.path.isEmpty() ? -1 : property(field, u"Text"_s, u"CaretOffset"_s).toInt();
}
