// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

/// Whether mail can be addressed to it without quotes: a dot-atom of at most 64 characters (RFC
/// 5322), '@', a host name; ASCII, at most 254 characters.
bool isAddress(const QString &text);

/// Whether it can be shown as a name: at most 100 characters, not all blank, no control characters.
bool isName(const QString &text);

/// Whether it is a SHA-256 digest in lower-case hexadecimal, of anything but the empty text.
bool isDigest(const QString &text);

} // namespace sandbox
