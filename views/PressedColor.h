// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

/// The fill of a pressed button with the fill `color`: each channel less 0.2, below 0 as well. Only
/// black becomes lighter. A colour of an unknown model gives no colour.
[[nodiscard]] UIColor pressedColor(const UIColor &color);
