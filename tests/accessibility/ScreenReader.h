// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

/// A screen reader for the one application on an accessibility bus: follows the keyboard focus,
/// lists the visible items, acts on them, and types.
class ScreenReader : public QObject {
    Q_OBJECT

public:
    /// Listens from now on to the bus of that address.
    explicit ScreenReader(const QString &address);
    ~ScreenReader() override { QDBusConnection::disconnectFromBus(m_bus.name()); }
    Q_DISABLE_COPY_MOVE(ScreenReader)

    /// Everything that shows in the application, its window first, as it is heard: "role name:
    /// text, description, selected, to press, focused", and what keeps it from being operated.
    [[nodiscard]] QStringList screen() const;
    /// The item with the keyboard focus, described as in `screen`. Empty for none.
    [[nodiscard]] QString focused() const;

    /// Takes an action of the visible item of that name; false if no item has that action.
    bool act(const QString &action, const QString &name) const;
    /// Types where the keyboard is, as a keyboard does.
    void type(const QString &text) const { generate(0, text, 4); }
    /// Presses a key of that X symbol.
    void key(int symbol) const { generate(symbol, {}, 3); }
    /// Where the insertion mark is in the field of that name; -1 for no such field.
    [[nodiscard]] int caret(const QString &name) const;

private Q_SLOTS:
    void stateChanged(const QDBusMessage &event);

private:
    /// An accessible item: its address and its properties.
    struct Node {
        QString service;
        QString path;
        quint32 role = 0;
        QString name = {};
        QString description = {};
        QString text = {};
        quint64 states = 0;
        QStringList actions = {};
    };

    /// The results of a method of "org.a11y.atspi." and `interface`; none if it fails, as it does
    /// for an item that has gone meanwhile.
    QVariantList call(const Node &node, const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;
    void generate(int symbol, const QString &text, quint32 kind) const;
    [[nodiscard]] QVariant property(const Node &node, const QString &interface,
                                    const QString &name) const;
    [[nodiscard]] QList<Node> children(const Node &node) const;
    void collect(Node node, QList<Node> &found) const;
    [[nodiscard]] QList<Node> nodes() const;
    /// The last, which is the topmost, of that name that has the action.
    [[nodiscard]] Node find(const QString &action, const QString &name) const;
    [[nodiscard]] bool isFocused(const Node &node) const;
    [[nodiscard]] QString describe(const Node &node) const;

    QDBusConnection m_bus;
    QString m_focused;
};
