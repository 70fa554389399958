// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The password digest: SHA-256 of the text's UTF-8 bytes up to its first null character, as 64
/// lower-case hexadecimal digits. The service receives no password in another form. Any thread.
[[nodiscard]] QString SHA256(const QString &text);
