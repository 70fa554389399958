// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

/// Puts every picture of `folder` whose name ends in "-<look>.png", small and named, on one sheet,
/// "<look>.png" in the same folder. False if the sheet cannot be written.
[[nodiscard]] bool makeContactSheet(const QDir &folder, const QString &look);
