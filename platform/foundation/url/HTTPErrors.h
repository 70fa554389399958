// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"

namespace HTTPErrors {

/// What a transfer's end is called. `reported`: libcurl's CURLcode, not that for success; `easy`:
/// the handle that it was reported for.
[[nodiscard]] URLErrorCode codeOf(void *easy, int reported);

} // namespace HTTPErrors
