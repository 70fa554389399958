// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Links to other applications, by the desktop's table of scheme handlers. Main thread only.
namespace Links {

/// Whether an application is registered for the scheme of `url`; false for text without a scheme.
[[nodiscard]] bool hasHandler(const QString &url);

/// Starts the application registered for the scheme of `url` with `url` as it stands, in UTF-8.
/// Does not wait for that application. Nothing happens without one, or when it cannot be started.
void open(const QString &url);

} // namespace Links
