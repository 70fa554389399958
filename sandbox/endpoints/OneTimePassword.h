// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

/// A password that nobody can guess and anybody can type: four groups of five lower-case letters
/// and digits, none easily taken for another, some 99 bits. "k7mwp-3xq9d-..."
QString makeOneTimePassword();

} // namespace sandbox
