// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

/// The colours of screens and cells. They follow light and dark from system version 13 on and are
/// fixed before it; each call checks the version.
namespace AdaptiveColors {

/// The background of a screen.
[[nodiscard]] UIColor screenBackground();
/// The background of a card.
[[nodiscard]] UIColor cardBackground();
[[nodiscard]] UIColor text();
/// The text of a caption.
[[nodiscard]] UIColor caption();
/// The placeholder of an empty field.
[[nodiscard]] UIColor placeholder();
[[nodiscard]] UIColor line();

} // namespace AdaptiveColors
