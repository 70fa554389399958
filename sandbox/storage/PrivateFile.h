// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace sandbox {

/// Makes the folder if it is missing, its parents too, and closes it to other users. Returns an
/// empty text, or why it cannot.
QString makePrivateDirectory(const QString &path);

/// Writes a file that only its owner may read, whole or not at all: under a temporary name beside
/// it first. What a power cut does to it is not looked after. Returns an empty text, or why it
/// cannot.
QString writePrivateFile(const QString &path, const QByteArray &bytes);

} // namespace sandbox
