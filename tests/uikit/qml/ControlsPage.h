// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UIActivityIndicatorView.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITapGestureRecognizer.h"
#include "platform/uikit/UITextField.h"
#include "tests/uikit/EventLog.h"
#include "tests/uikit/qml/QmlFixture.h"

/// A page with one control of each kind, drawn in a window; "link" lies 2 points below "button".
class ControlsPage : public QObject {
public:
    ControlsPage();

    UIView view;
    UILabel label;
    UITextField name;
    UITextField secret;
    UIButton button;
    UIButton link;
    UIImageView picture;
    UIActivityIndicatorView spinner;
    /// How often the page was tapped.
    int taps = 0;
    /// Goes before what it draws.
    QmlFixture fixture;

    /// The item of that objectName: those of the controls above, or "page", the root.
    [[nodiscard]] QQuickItem *item(const char *objectName) const;
    /// The middle of that item in the window.
    [[nodiscard]] QPoint at(const char *objectName) const;
    void key(int key, Qt::KeyboardModifiers modifiers = {});
    void type(const char *text);

private:
    void tapped() { ++taps; }
};
