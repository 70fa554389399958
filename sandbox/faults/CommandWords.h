// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

namespace sandbox {

/// The words of a line: separated by blanks, what stands between apostrophes kept together.
QStringList splitWords(const QString &line);

/// The text with \r, \n, \t, \xNN and \\ turned into the bytes that they stand for; any other
/// backslash stands for itself.
QByteArray unescape(const QByteArray &text);

} // namespace sandbox
