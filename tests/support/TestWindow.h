// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Host.h"
#include "platform/uikit/presentation/DesktopWindow.h"

#include <memory>

class QAccessibleInterface;
class TestApp;

/// The window of a launched TestApp: the real drawings, touches and keys. Whatever QML complains
/// about fails the test. Destroyed before the application's run ends.
class TestWindow {
public:
    /// Shows the window and waits until it has the keyboard.
    explicit TestWindow(TestApp &app, const QSize &size = {390, 844},
                        const DesktopAppearance &appearance = {});
    ~TestWindow();
    Q_DISABLE_COPY_MOVE(TestWindow)

    [[nodiscard]] QQuickView &view() { return m_host->view(); }
    /// Waits until no controller of the window is in a transition.
    void settle();

    /// What draws that view or control, and its rectangle in the window.
    [[nodiscard]] QQuickItem *drawing(const QObject *control);
    [[nodiscard]] QRectF rect(const QObject *control);
    /// What a screen reader finds under that name, the topmost first; null for none.
    [[nodiscard]] QAccessibleInterface *accessible(const QString &name);

    /// Taps what draws that view or control, or what a screen reader finds under that name.
    void tap(const QObject *control);
    void tap(const QString &name);
    void key(Qt::Key key);
    void type(const QString &text);

private:
    std::unique_ptr<DesktopWindow> m_host;
};
