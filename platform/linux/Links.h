// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Links to other applications, through the desktop's scheme handlers. Main thread only.
namespace Links {

/// Whether an application handles the scheme of `url`; false for a text without a scheme.
[[nodiscard]] bool hasHandler(const QString &url);

/// Starts the application that handles the scheme of `url`, with the unchanged `url` in UTF-8. Does
/// not wait for it. Ignores failures.
void open(const QString &url);

} // namespace Links
