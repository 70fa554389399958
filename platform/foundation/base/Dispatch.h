// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Runs `work` later on the main thread, after everything dispatched before it; never at once, on
/// the main thread neither. Any thread. Without an application object, before it is made and after
/// it is gone, `work` is dropped.
void dispatchAsyncMain(std::function<void()> work);
