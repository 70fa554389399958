// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UITraitCollection.h"

/// How the desktop wishes applications to look. Every field has the value that stands for
/// "the desktop says nothing".
struct DesktopAppearance {
    UIUserInterfaceStyle style = UIUserInterfaceStyle::Unspecified;
    /// Factor on every text size, 1.0 when the desktop sets none; never 0 or less.
    double textScale = 1.0;
    /// True when the desktop has its animations switched off.
    bool reduceMotion = false;

    bool operator==(const DesktopAppearance &) const = default;
};
