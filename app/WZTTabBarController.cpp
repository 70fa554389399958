// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/WZTTabBarController.h"

#include "views/HapticTap.h"
#include "views/UIColorEx.h"

void WZTTabBarController::viewDidLoad()
{
    UITabBarController::viewDidLoad();
    tabBar()->setTintColor(UIColorEx::tintColor());
}

void WZTTabBarController::didSelectItem(UITabBarItem *)
{
    tapHaptically();
}
