// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace sandbox {

/// Makes the folder and its parents if they are missing, and closes it to other users. Returns an
/// empty text, or the reason of a failure.
QString makeStateFolder(const QString &path);

/// Writes a file that only its owner may read, whole or not at all; a power cut may undo it.
/// Returns an empty text, or the reason of a failure.
QString writeStateFile(const QString &path, const QByteArray &bytes);

} // namespace sandbox
