// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace sandbox {

/// Whether it is an e-mail address without quotes: a dot-atom (RFC 5322, 3.2.3) of at most 64
/// characters, '@', a host name; ASCII, at most 254 characters.
bool isAddress(const QString &text);

/// Whether it is a name: 1 to 100 characters, not all blank, no control characters.
bool isName(const QString &text);

/// Whether it is a SHA-256 digest in lower-case hexadecimal, but not that of the empty text.
bool isDigest(const QString &text);

} // namespace sandbox
