// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/ScreenReader.h"

#include <QDBusMessage>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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

// What AT-SPI numbers so is called so here, and has to have all this.
struct Manners {
    quint32 role;
    QLatin1StringView name;
    bool named;
    quint64 states;
    QLatin1StringView action;
};

constexpr quint32 application = 75;
constexpr Manners allManners[] = {
    {2, "alert"_L1, true, 0, {}},
    {16, "dialog"_L1, true, 0, {}},
    {23, "window"_L1, true, 0, {}},
    {29, "label"_L1, true, 0, {}},
    {31, "list"_L1, false, 0, {}},
    {32, "row"_L1, true, focusable | selectable, "Press"_L1},
    {37, "tab"_L1, true, focusable | selectable, "Press"_L1},
    {38, "tabs"_L1, false, 0, {}},
    {40, "secret"_L1, true, focusable | editable, "SetFocus"_L1},
    {42, "progress"_L1, true, 0, {}},
    {43, "button"_L1, true, focusable, "Press"_L1},
    {61, "field"_L1, true, focusable | editable, "SetFocus"_L1},
    {83, "heading"_L1, true, 0, {}},
};

const Manners *mannersOf(const AccessibleFacts &facts)
{
    const auto *found =
        std::find_if(std::begin(allManners), std::end(allManners),
                     [&](const Manners &manners) { return manners.role == facts.role; });
    return found == std::end(allManners) ? nullptr : found;
}

QString fault(const AccessibleFacts &facts)
{
    const Manners *manners = mannersOf(facts);
    if (!manners)
        return u" (role %1)"_s.arg(facts.role);
    if (manners->named && facts.name.isEmpty())
        return u" (no name)"_s;
    const quint64 states = manners->states | visible | enabled | sensitive;
    if ((facts.states & states) != states)
        return u" (not in states %1)"_s.arg(states & ~facts.states, 0, 16);
    if (!manners->action.isEmpty() && !facts.actions.contains(manners->action))
        return u" (no action %1)"_s.arg(manners->action);
    return {};
}

} // namespace

ScreenReader::ScreenReader(const QString &address) : m_bus(address)
{
    m_bus.observeStates(this, SLOT(stateChanged(QDBusMessage)));
}

void ScreenReader::stateChanged(const QDBusMessage &event)
{
    const bool comes = event.arguments().value(1).toBool();
    if (event.arguments().value(0) == u"focused"_s && (comes || event.path() == m_focused))
        m_focused = comes ? event.path() : QString();
}

void ScreenReader::collect(const Accessible &object, QList<Node> &found) const
{
    const Node node{object, m_bus.facts(object)};
    if (!(node.facts.states & showing))
        return;
    if (node.facts.role != application)
        found.append(node);
    for (const Accessible &child : m_bus.children(object))
        collect(child, found);
}

QList<ScreenReader::Node> ScreenReader::nodes() const
{
    QList<Node> found;
    for (const Accessible &object : m_bus.children(AccessibilityBus::desktop()))
        collect(object, found);
    return found;
}

bool ScreenReader::isFocused(const Node &node) const
{
    // What has the keyboard from the start may have said so before anybody listened.
    return (node.facts.states & hasFocus) && (m_focused.isEmpty() || node.object.path == m_focused);
}

QString ScreenReader::describe(const Node &node) const
{
    const AccessibleFacts &facts = node.facts;
    const Manners *manners = mannersOf(facts);
    QString line = manners ? manners->name : "something"_L1;
    if (!facts.name.isEmpty())
        line += u' ' + facts.name;
    if (!facts.text.isEmpty())
        line += u": "_s + facts.text;
    if (!facts.description.isEmpty() && facts.description != facts.name)
        line += u", "_s + facts.description;
    if (facts.states & selected)
        line += u", selected"_s;
    if (isFocused(node))
        line += u", focused"_s;
    return line + fault(facts);
}

QStringList ScreenReader::screen() const
{
    QStringList lines;
    for (const Node &node : nodes())
        lines.append(describe(node));
    return lines;
}

QString ScreenReader::focused() const
{
    const QList<Node> all = nodes();
    const auto found =
        std::find_if(all.begin(), all.end(), [this](const Node &node) { return isFocused(node); });
    return found == all.end() ? QString() : describe(*found);
}

ScreenReader::Node ScreenReader::find(const QString &action, const QString &name) const
{
    const QList<Node> all = nodes();
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](const Node &node) {
        return node.facts.name == name && node.facts.actions.contains(action);
    });
    return found == all.rend() ? Node() : *found;
}

bool ScreenReader::act(const QString &action, const QString &name) const
{
    const Node node = find(action, name);
    const auto index = int(node.facts.actions.indexOf(action));
    return index >= 0
        && m_bus.call(node.object, u"Action"_s, u"DoAction"_s, {index}).value(0).toBool();
}

int ScreenReader::caret(const QString &name) const
{
    const Node field = find(u"SetFocus"_s, name);
    return field.object.path.isEmpty()
        ? -1
        : m_bus.property(field.object, u"Text"_s, u"CaretOffset"_s).toInt();
}
