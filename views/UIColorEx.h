// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

namespace UIColorEx {

/// The application's accent colour: system teal in the dark style, system blue in the light and the
/// unspecified style, and always system blue before system version 13. Each call makes a new
/// colour, which equals no other.
[[nodiscard]] UIColor tintColor();

} // namespace UIColorEx
