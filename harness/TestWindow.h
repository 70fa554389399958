// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/Finger.h"
#include "platform/uikit/base/Host.h"

#include <QQuickItem>
#include <QQuickView>

#include <memory>

class QAccessibleInterface;
class UIWindow;
class DesktopWindow;

/// A window and its user: finds items by type, object name, control or accessible name, and touches
/// and types. Items made by Repeaters and Loaders are found too.
class TestWindow {
public:
    TestWindow();
    /// A window that somebody else opens.
    explicit TestWindow(QQuickView &view);
    ~TestWindow();
    Q_DISABLE_COPY_MOVE(TestWindow)

    /// From now on every QML warning fails the test, and accessibility is active.
    static void beStrict();
    /// Opens an application's window, strictly, and waits until it has the keyboard. Closed before
    /// the application ends.
    void open(UIWindow &window, const QSize &size = {390, 844},
              const DesktopAppearance &appearance = {});
    void close();
    [[nodiscard]] QQuickView &view() const { return *m_view; }
    /// Waits until no controller is in a transition and no deferred delete is left.
    void settle() const;
    /// Shows the frame that is due.
    QImage grab() const { return m_view->grabWindow(); }

    /// The items of that type ("UIButtonView"), in the order in which they are drawn.
    [[nodiscard]] QList<QQuickItem *> items(const QString &type) const;
    /// The first of them; null for none.
    [[nodiscard]] QQuickItem *item(const QString &type) const { return items(type).value(0); }
    /// The item of that objectName; null for none.
    [[nodiscard]] QQuickItem *named(const QString &name) const;
    /// `item` or one below it.
    [[nodiscard]] static QQuickItem *named(QQuickItem *item, const QString &name);
    /// The item that draws that view or control; null for none.
    [[nodiscard]] QQuickItem *drawing(const QObject *control) const;
    /// The accessible item of that name, the topmost first; null for none.
    [[nodiscard]] QAccessibleInterface *accessible(const QString &name) const;
    /// Every accessible item, in order.
    [[nodiscard]] QList<QAccessibleInterface *> accessibleItems() const;
    /// "role name" of each of them.
    [[nodiscard]] QStringList accessible() const;
    /// The accessible name of the item with the keyboard focus; "rows" for those of a table.
    [[nodiscard]] QString focused() const;

    /// A rectangle in the window, and its centre: of an item, of the drawing of a view or control,
    /// or of the accessible item of that name.
    [[nodiscard]] static QRectF rect(const QQuickItem *item);
    [[nodiscard]] QRectF rect(const QObject *control) const { return rect(drawing(control)); }
    [[nodiscard]] QRectF rect(const QString &name) const;
    template <typename Thing>
    [[nodiscard]] QPoint centre(const Thing &thing) const
    {
        return rect(thing).center().toPoint();
    }

    /// A finger taps.
    void tap(const QPoint &point) const;
    template <typename Thing>
    void tap(const Thing &thing) const
    {
        tap(centre(thing));
    }
    /// A finger moves from one place to another.
    void drag(const QPoint &from, const QPoint &to) const;
    /// Takes the press action of the accessible item of that name, in sight or not.
    void press(const QString &name) const;
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    void keys(const QList<Qt::Key> &keys) const;
    /// Holds a key: a press, some repeats, and the release.
    void hold(Qt::Key key) const;
    void type(const QString &text) const;
    /// As if an on-screen keyboard took that much of the window, from below; 0 for none.
    void showKeyboard(double height) const;

private:
    std::unique_ptr<DesktopWindow> m_host;
    QQuickView *m_view = nullptr;
};
