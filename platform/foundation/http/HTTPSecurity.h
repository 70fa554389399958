// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLSessionConfiguration.h"

#include <memory>

namespace HTTPSecurity {

/// True once the peer has sent TLS's close_notify alert (RFC 8446, 6.1). Without it the end of a
/// connection may be a truncation.
using CloseNotify = std::shared_ptr<bool>;

/// Sets the TLS options of the handle `easy`. `closeNotify` must outlive the handle; each
/// connection replaces its value by a new one.
void apply(void *easy, const NSURLSessionConfiguration &configuration, CloseNotify *closeNotify);

} // namespace HTTPSecurity
