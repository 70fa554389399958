// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/NSCoder.h"

#include <QByteArray>

/// Writes the platform's keyed archives: binary property lists of $version 100000 whose $objects
/// refer to each other by UID. The first object is "$null".
namespace NSKeyedArchiver {

/// The archive of an object of class `className` with the values of `coder`. Equal objects are
/// stored once. Nil if a text is not valid Unicode.
[[nodiscard]] std::optional<QByteArray> archivedDataWithCoder(const NSCoder &coder,
                                                              const QString &className);

/// The archive of `root`, a record with `void encodeWithCoder(NSCoder &) const`.
template <typename Record>
[[nodiscard]] std::optional<QByteArray> archivedDataWithRootObject(const Record &root,
                                                                   const QString &className)
{
    NSCoder coder;
    root.encodeWithCoder(coder);
    return archivedDataWithCoder(coder, className);
}

} // namespace NSKeyedArchiver
