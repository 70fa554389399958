// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "service/WZTAPI.h"
#include "service/WZTRequest.h"

#include <span>

/// The status codes of one account operation. The first field that matches the reply gives the
/// code, from top to bottom.
struct AccountReplyCodes {
    struct Result {
        QLatin1StringView text;
        NSUInteger code = 0;
    };

    NSUInteger transportError = 0;
    /// The reply contains a user. Nil for an operation that looks for none.
    std::optional<NSUInteger> user;
    /// The texts under "result", compared exactly.
    std::span<const Result> results;
    NSUInteger anythingElse = 0;
};

/// Sends `request` and calls `completion` with the code and the user of its reply. `codes` is
/// a constant: it outlives the request.
void sendAccountRequest(const WZTRequest &request, const AccountReplyCodes &codes,
                        WZTAPI::UserCompletion completion);
