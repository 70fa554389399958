// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

namespace UIColorEx {

/// The application's one accent colour: system teal in the dark style, system blue in every other,
/// the unspecified one included; before system version 13 always system blue. A new colour at
/// every call, equal to none before it.
[[nodiscard]] UIColor tintColor();

} // namespace UIColorEx
