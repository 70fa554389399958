// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UIHost.h"
#include "platform/uikit/qml/UIWindowHost.h"

#include <memory>

class QQuickItem;
class TestApp;

/// The window of a launched TestApp: the real drawings, touches and keys. Whatever QML complains
/// about fails the test. Destroyed before the application's run ends.
class TestWindow {
public:
    /// Shows the window and waits until it has the keyboard.
    explicit TestWindow(TestApp &app, const QSize &size = {390, 844},
                        const UIAppearance &appearance = {});
    ~TestWindow();
    Q_DISABLE_COPY_MOVE(TestWindow)

    [[nodiscard]] QQuickView &view() { return m_host->view(); }
    /// Waits until no controller of the window is in a transition.
    void settle();

    /// The shown items of that QML type ("UIButtonView"), in the order in which they are drawn.
    [[nodiscard]] QList<QQuickItem *> items(const QString &type);
    /// The item of that objectName; null for none.
    [[nodiscard]] QQuickItem *named(const QString &name);
    /// The item that draws that view or control; null for none.
    [[nodiscard]] QQuickItem *drawing(const QObject *control);
    /// `item`'s rectangle in the window.
    [[nodiscard]] static QRectF rect(const QQuickItem *item);

    void tap(const QQuickItem *item);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);

private:
    QList<QQuickItem *> collect(const std::function<bool(QQuickItem *)> &wanted);

    TestApp &m_app;
    std::unique_ptr<UIWindowHost> m_host;
};
