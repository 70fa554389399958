// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/DesktopAppearance.h"

#include <QString>

#include <functional>

enum class UIImpactFeedbackStyle { Light = 0 };

/// The one port to the machine: the services of the system that the application needs beside a
/// window. Every call and every callback is on the main thread; no call waits for another process
/// longer than a second.
class Host {
public:
    virtual ~Host() = default;

    /// Whether an application is registered for the scheme of `url`.
    [[nodiscard]] virtual bool canOpenURL(const QString &url) = 0;

    /// Hands `url`, character for character, to the application registered for its scheme.
    /// Fire and forget: without such an application nothing happens.
    virtual void openURL(const QString &url) = 0;

    /// One tap of haptic feedback; silently nothing on a machine that has none.
    virtual void impactOccurred(UIImpactFeedbackStyle style) = 0;

    /// Calls `changed` with the desktop's appearance once it is known and after each change.
    /// Not called at all on a desktop that tells nothing. Replaces an earlier callback.
    virtual void observeAppearance(std::function<void(const DesktopAppearance &)> changed) = 0;
};
