// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/RecordingHost.h"
#include "harness/TestRunner.h"
#include "harness/TestWindow.h"
#include "platform/uikit/base/Make.h"
#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/presentation/UIWindow.h"

/// An application whose window shows any controllers.
class WindowStage : public TestWindow {
public:
    explicit WindowStage(const DesktopAppearance &appearance = {}) : m_appearance(appearance) {}
    ~WindowStage();
    Q_DISABLE_COPY_MOVE(WindowStage)

    /// Shows a window of that size: `root`, and over it, not animated, `presented` if there is one.
    void show(const std::shared_ptr<UIViewController> &root,
              const std::shared_ptr<UIViewController> &presented = {},
              const QSize &size = {390, 844});

    RecordingHost machine;
    UIApplication application{machine};
    std::unique_ptr<UIWindow> window = std::make_unique<UIWindow>();

private:
    DesktopAppearance m_appearance;
};
