// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/NSCoder.h"

#include <QByteArray>

/// Reads keyed archives of the platform and of other writers of its format: binary or XML, UIDs as
/// values of their own type or as {CF$UID: n}, dates as NSDate objects or as plain dates.
namespace NSKeyedUnarchiver {

/// The values of the root object. Nil if `data` is not an intact keyed archive, or if its root is
/// not an object of class `className` or of a derived class. Values of types that a record cannot
/// hold (lists, data, objects of other classes) are nil.
[[nodiscard]] std::optional<NSCoder> unarchiveObjectWithData(const QByteArray &data,
                                                             const QString &className);

} // namespace NSKeyedUnarchiver
