// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/NSCoder.h"
#include "platform/foundation/coding/PropertyList.h"

/// The values of a record in a keyed archive.
namespace ArchivedValues {

/// The value of a plain text, number, boolean or date; nil for any other node.
[[nodiscard]] NSCoder::Value fromPlain(const PropertyList &node);

/// The value of an object of that class; the plain value for a class without a reader.
[[nodiscard]] NSCoder::Value fromObject(const PropertyList &object,
                                        const std::optional<QString> &className);

} // namespace ArchivedValues
