// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/controls/UIActivityIndicatorView.h"
#include "platform/uikit/controls/UIButton.h"
#include "platform/uikit/controls/UIImageView.h"
#include "platform/uikit/text/UITextField.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/WindowDriver.h"
#include "tests/uikit/EventLog.h"

#include <QQuickView>

/// A page with one control of each kind, in a window of 390x844; "link" lies 2 points below
/// "button". Anything that QML complains about fails the test.
class ControlsPage {
public:
    ControlsPage();

    RecordingHost host;
    UIApplication application{host};
    UIView view;
    UITextField name;
    UITextField secret;
    UIButton button;
    UIButton link;
    UIImageView picture;
    UIActivityIndicatorView spinner;
    QQuickView window;

    /// The item of that objectName: those of the controls above, or "page", the root.
    [[nodiscard]] QQuickItem *item(const char *objectName) const;
    /// The middle of that item in the window.
    [[nodiscard]] QPoint at(const char *objectName) const;
    void key(int key, Qt::KeyboardModifiers modifiers = {});
    void type(const char *text);
    void tap(const QPoint &point) { WindowDriver::tap(window, point); }
};
