// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/NSCoder.h"

#include <QByteArray>

/// Reads keyed archives as the platform and other writers of its format make them: binary or XML,
/// UIDs of the format's own type or as {CF$UID: n}, dates as NSDate objects or plain ones.
namespace NSKeyedUnarchiver {

/// The values of the root object. Nil when `data` is no keyed archive, is damaged, has nil as its
/// root, or a root that is not of class `className` (or of one derived from it). Values that a
/// record cannot hold (lists, data, objects of other classes) read as nil.
[[nodiscard]] std::optional<NSCoder> unarchiveObjectWithData(const QByteArray &data,
                                                             const QString &className);

} // namespace NSKeyedUnarchiver
