// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLSessionConfiguration.h"

#include <memory>

namespace HTTPSecurity {

/// True once the other side has said that it will send no more. A connection that ends without
/// that was cut.
using Farewell = std::shared_ptr<bool>;

/// Says to libcurl whom the connections of the handle `easy` trust, and how they behave. For each
/// connection `farewell`, which must outlive the handle, is set to one of its own.
void apply(void *easy, const NSURLSessionConfiguration &configuration, Farewell *farewell);

} // namespace HTTPSecurity
