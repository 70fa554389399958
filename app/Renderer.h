// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Renderer {

/// Selects Qt's software renderer on a machine without graphics hardware, where emulated hardware
/// would take three times the memory. QT_QUICK_BACKEND, if set, decides instead. Has every frame
/// drawn at once: otherwise each blink of a text cursor wakes the processor twice. Call it before
/// the application object is made.
void choose();

/// Restarts the program with the same arguments and the software renderer, after the hardware has
/// failed. Returns only if that is impossible.
void fallBack();

} // namespace Renderer
