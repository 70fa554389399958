// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/UITabBarController.h"

/// The root of the interface: tabs in the application's tint colour, with a haptic tap at each
/// choice.
class WZTTabBarController : public UITabBarController {
    Q_OBJECT

public:
    void viewDidLoad() override;
    void didSelectItem(UITabBarItem *item) override;
};
