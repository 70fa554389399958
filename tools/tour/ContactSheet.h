// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

/// Puts every picture of `folder`, small and named, on one sheet beside the folder, "<folder>.png".
/// False if the sheet cannot be written.
[[nodiscard]] bool makeContactSheet(const QDir &folder);
