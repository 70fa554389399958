// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Runs `work` on the main thread, after all work dispatched earlier, and never before this call
/// returns. Any thread. Without an application object `work` is dropped.
void dispatchAsyncMain(std::function<void()> work);
