// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The password digest: SHA-256 of the text's UTF-8 bytes up to its first null character, as 64
/// lower-case hexadecimal digits. The service is sent nothing else of a password. Any thread.
[[nodiscard]] QString SHA256(const QString &text);
