// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

/// The colours of screens and cells: from system version 13 on those that follow light and dark,
/// before it fixed ones. The version is looked at when the colour is asked for.
namespace AdaptiveColors {

/// Behind a whole screen.
[[nodiscard]] UIColor screenBackground();
/// Behind the contents of a card.
[[nodiscard]] UIColor cardBackground();
[[nodiscard]] UIColor text();
/// What stands beside a text and says less.
[[nodiscard]] UIColor caption();
/// What stands in an empty field.
[[nodiscard]] UIColor placeholder();
[[nodiscard]] UIColor line();

} // namespace AdaptiveColors
