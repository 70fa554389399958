// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Renderer {

/// Has windows drawn by Qt's software renderer on a machine without graphics hardware, where
/// emulated hardware would take three times the memory. QT_QUICK_BACKEND, if set, holds instead.
/// To be called before the application object is made.
void choose();

/// Starts the program anew, as it was started, with the software renderer: for when the hardware
/// is there but cannot be used. Returns only if that fails.
void fallBack();

} // namespace Renderer
