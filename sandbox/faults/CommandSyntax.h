// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

namespace sandbox {

/// The words of a line: separated by blanks, except between apostrophes.
QStringList splitWords(const QString &line);

/// Replaces \r, \n, \t, \xNN and \\ by their bytes, and keeps any other backslash.
QByteArray unescape(const QByteArray &text);

} // namespace sandbox
