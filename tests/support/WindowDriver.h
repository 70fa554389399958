// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

class QAccessibleInterface;
class QPointingDevice;
class QQuickView;
class QQuickWindow;

/// A person at a window: finds things by what draws them, by object name, or by the name that a
/// screen reader says, and touches and types. Items made by Repeaters and Loaders are found too.
namespace WindowDriver {

/// From now on whatever QML complains about fails the test, and a screen reader listens.
void beStrict();
/// Waits until no controller is in a transition, and what was to be deleted later is.
void settle(const QQuickWindow &window);

/// The items of that type ("UIButtonView"), in the order in which they are drawn.
[[nodiscard]] QList<QQuickItem *> items(const QQuickWindow &window, const QString &type);
/// The item of that objectName; null for none.
[[nodiscard]] QQuickItem *named(const QQuickWindow &window, const QString &name);
/// `item` or one below it.
[[nodiscard]] QQuickItem *named(QQuickItem *item, const QString &name);
/// The item that draws that view or control; null for none.
[[nodiscard]] QQuickItem *drawing(const QQuickWindow &window, const QObject *control);
/// What a screen reader finds under that name, the topmost first; null for none.
[[nodiscard]] QAccessibleInterface *accessible(QQuickWindow &window, const QString &name);
/// "role name" of everything that a screen reader finds, in order.
[[nodiscard]] QStringList accessible(QQuickWindow &window);

/// `item`'s rectangle in the window, and its middle.
[[nodiscard]] QRectF rect(const QQuickItem *item);
[[nodiscard]] QPoint centre(const QQuickItem *item);

/// As if an on-screen keyboard took that much of the window, from below; 0 for none.
void showKeyboard(QQuickView &view, double height);

/// What fingers touch.
[[nodiscard]] QPointingDevice *screen();
/// A finger taps.
void tap(QQuickWindow &window, const QPoint &point);
void type(QQuickWindow &window, const QString &text);
/// Holds a key: a press, some repeats to whatever has the keyboard then, and the release.
void hold(QQuickWindow &window, Qt::Key key);

/// A finger on a window from when it is made to when it is lifted.
class Finger {
public:
    Finger(QQuickWindow &window, const QPoint &at);
    /// Moves there in small steps, each seen in a frame of its own.
    void move(const QPoint &to);
    void lift();
    [[nodiscard]] QPoint at() const { return m_at; }

private:
    QQuickWindow &m_window;
    QPoint m_at;
};

} // namespace WindowDriver
