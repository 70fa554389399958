// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Request.h"

namespace sandbox {

/// Sets the request's target, path and query items. Splits the query at '&', ignores empty pieces,
/// reads '+' as a blank (application/x-www-form-urlencoded), and decodes percent sequences (RFC
/// 3986, 2.1) except malformed ones.
void setTarget(Request &request, const QByteArray &target);

} // namespace sandbox
