// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

/// What a button of that colour is filled with while a finger is on it: each channel less 0.2,
/// below 0 as well; black alone grows lighter. No colour for one whose model is not known.
[[nodiscard]] UIColor pressedColor(const UIColor &color);
