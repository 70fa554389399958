// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/input/KeyRepeatFilter.h"

#include <QQuickView>

class UIWindow;

/// The window on the desktop that draws a UIWindow: 390x844 at first, or as much of that as
/// the screen has room for, freely resizable from 320x568 up. Ctrl+Q and closing it end the
/// application's main loop.
class DesktopWindow {
public:
    /// `window` outlives this object. `iconFile`: the SVG file of the icon, empty for none.
    DesktopWindow(UIWindow &window, const QString &title, const QString &iconFile);
    ~DesktopWindow();

    /// Shows the window, or brings it to the front.
    void show();

    /// The window itself.
    [[nodiscard]] QQuickView &view() { return m_view; }

private:
    QQuickView m_view;
    KeyRepeatFilter m_keyRepeatFilter{m_view};
};
