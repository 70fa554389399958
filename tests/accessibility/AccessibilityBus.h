// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>

/// Something that an application tells assistive technology about, by its address on the bus.
struct Accessible {
    QString service;
    QString path;
};

/// What an application says of it.
struct AccessibleFacts {
    quint32 role = 0; ///< Numbered as AT-SPI numbers them.
    QString name;
    QString description;
    QString text; ///< What is typed in it.
    quint64 states = 0; ///< Bits, numbered likewise.
    QStringList actions;
};

/// The accessibility bus, asked synchronously. What has gone meanwhile answers with nothing.
class AccessibilityBus {
public:
    explicit AccessibilityBus(const QString &address);
    ~AccessibilityBus();
    Q_DISABLE_COPY_MOVE(AccessibilityBus)

    /// The first results of a method of "org.a11y.atspi." and `interface`; none if it fails.
    QVariantList call(const Accessible &object, const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;
    [[nodiscard]] QVariant property(const Accessible &object, const QString &interface,
                                    const QString &name) const;
    [[nodiscard]] QList<Accessible> children(const Accessible &object) const;
    [[nodiscard]] AccessibleFacts facts(const Accessible &object) const;

    /// All applications; their windows are its children.
    [[nodiscard]] static Accessible desktop();
    /// Presses keys as a keyboard does: a key symbol of X, or those of a text.
    void pressKey(int symbol) const { generate(symbol, {}, 3); }
    void pressKeys(const QString &text) const { generate(0, text, 4); }

    /// Has `slot` of `receiver`, which takes a QDBusMessage, called when the state of anything
    /// changes.
    void observeStates(QObject *receiver, const char *slot);

private:
    void generate(int code, const QString &text, uint kind) const;

    QDBusConnection m_connection;
};
