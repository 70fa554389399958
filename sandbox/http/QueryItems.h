// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Request.h"

namespace sandbox {

/// Sets the request's target, and its path and items from it: pieces between '&', empty pieces
/// dropped, '+' a blank, percent sequences decoded, malformed ones left as they stand.
void setTarget(Request &request, const QByteArray &target);

} // namespace sandbox
