// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Host.h"

/// The traits that a dynamic colour is resolved against.
struct UITraitCollection {
    UIUserInterfaceStyle userInterfaceStyle = UIUserInterfaceStyle::Unspecified;
};
