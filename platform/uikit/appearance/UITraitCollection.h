// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

enum class UIUserInterfaceStyle { Unspecified = 0, Light = 1, Dark = 2 };

/// The traits that a dynamic colour is resolved against.
struct UITraitCollection {
    UIUserInterfaceStyle userInterfaceStyle = UIUserInterfaceStyle::Unspecified;
};
