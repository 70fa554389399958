// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

/// A random password of some 99 bits: four groups of five lower-case letters and digits, without
/// those that look alike. "k7mwp-3xq9d-..."
QString makeOneTimePassword();

} // namespace sandbox
