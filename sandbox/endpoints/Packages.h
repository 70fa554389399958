// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace sandbox {

/// The identifiers of the packages that have issues.
const QStringList &packages();

} // namespace sandbox
