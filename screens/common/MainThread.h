// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/Dispatch.h"
#include "platform/uikit/base/Make.h"

#include <functional>
#include <utility>

/// Makes a completion that may run on any thread. It calls `handler` on the main thread with
/// `receiver` and the completion's arguments, and keeps `receiver`, which `make` made, until then.
template <typename Receiver, typename Handler>
[[nodiscard]] auto onMainThread(Receiver *receiver, Handler handler)
{
    return [receiver = strong(receiver), handler = std::move(handler)](const auto &...arguments) {
        dispatchAsyncMain(
            [receiver, handler, arguments...] { std::invoke(handler, *receiver, arguments...); });
    };
}
