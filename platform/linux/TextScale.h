// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// The factor on text sizes. Under X11 the desktop's text scale may be a part of Xft.dpi, from
/// which Qt takes the pixel ratio of every window: then all is larger already, texts too.
namespace TextScale {

/// What is left of the desktop's `textScale` for the windows of this process. May change with the
/// geometry of the screen. 1.0 stands for nothing.
[[nodiscard]] double remaining(double textScale);

/// The same for the Qt platform `platform`, whose screen has `ratio` pixels to a point, leaving
/// QT_SCALE_FACTOR out.
[[nodiscard]] double remaining(double textScale, QStringView platform, double ratio);

} // namespace TextScale
