// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"

namespace HTTPErrors {

/// The error code for a failed transfer. `reported`: its CURLcode, not CURLE_OK; `easy`: its
/// handle.
[[nodiscard]] URLErrorCode codeOf(void *easy, int reported);

} // namespace HTTPErrors
