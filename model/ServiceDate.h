// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <optional>

class QJsonValue;

/// The date of a service parameter: a text such as "2019-08-14 17:05:09" in the device's time zone.
/// Nil for any other text and any other value. Any thread.
[[nodiscard]] std::optional<NSDate> serviceDate(const QJsonValue &value);
