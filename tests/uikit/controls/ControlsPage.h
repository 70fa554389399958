// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/RecordingHost.h"
#include "harness/TestWindow.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/controls/UIActivityIndicatorView.h"
#include "platform/uikit/controls/UIButton.h"
#include "platform/uikit/controls/UIImageView.h"
#include "platform/uikit/text/UITextField.h"
#include "tests/uikit/controls/EventLog.h"

/// A page with one control of each kind, in a window of 390x844; "link" lies 2 points below
/// "button". The items have the controls' names as objectName, and the root is "page".
class ControlsPage : public TestWindow {
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
};
