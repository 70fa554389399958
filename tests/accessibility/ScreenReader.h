// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/accessibility/AccessibilityBus.h"

#include <QObject>

class QDBusMessage;

/// A person who sees nothing, at the one application on an accessibility bus: hears what gets the
/// keyboard, goes through what shows, acts on it, and types.
class ScreenReader : public QObject {
    Q_OBJECT

public:
    /// Listens from now on to the bus of that address.
    explicit ScreenReader(const QString &address);

    /// Everything that shows in the application, its window first, as it is heard: "role name:
    /// text, description, selected, focused", and what keeps it from being operated.
    [[nodiscard]] QStringList screen() const;
    /// Of these what has the keyboard: what was the last to say so, and still is. Empty for none.
    [[nodiscard]] QString focused() const;

    /// Takes an action of what shows under that name; false if nothing there has that action.
    bool act(const QString &action, const QString &name) const;
    /// Types where the keyboard is.
    void type(const QString &text) const { m_bus.pressKeys(text); }
    /// Presses a key of that X symbol.
    void key(int symbol) const { m_bus.pressKey(symbol); }
    /// Where the insertion mark is in the field of that name; -1 for no such field.
    [[nodiscard]] int caret(const QString &name) const;

private Q_SLOTS:
    void stateChanged(const QDBusMessage &event);

private:
    struct Node {
        Accessible object;
        AccessibleFacts facts;
    };

    [[nodiscard]] QList<Node> nodes() const;
    void collect(const Accessible &object, QList<Node> &found) const;
    /// The last, which is the topmost, of that name that has the action.
    [[nodiscard]] Node find(const QString &action, const QString &name) const;
    [[nodiscard]] bool isFocused(const Node &node) const;
    [[nodiscard]] QString describe(const Node &node) const;

    AccessibilityBus m_bus;
    QString m_focused;
};
