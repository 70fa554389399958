// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestApp.h"
#include "screens/login/WZTLoginViewController.h"

/// Login, with or without an alert over it.
[[nodiscard]] inline WZTLoginViewController &login(TestApp &app)
{
    const auto controllers = app.delegate().window()->presentation()->controllers();
    return dynamic_cast<WZTLoginViewController &>(*controllers.at(1));
}
