// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/DesktopAppearance.h"

#include <QString>
#include <QStringList>

#include <functional>

enum class UIImpactFeedbackStyle { Light = 0 };

/// The one port to the machine: the services of the system that the application needs beside a
/// window.
/// Every call and every callback is on the main thread, and no call waits long for another process.
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

    /// Claims to be the only instance on this session. If another one runs already, hands `urls`
    /// to it (or asks it to come to the front when there are none) and returns false.
    /// Returns true when this process is the one, and where there is no session bus.
    /// `opened` is called for every list of URLs that a later start hands over, empty for
    /// a mere activation.
    [[nodiscard]] virtual bool
    claimSingleInstance(const QStringList &urls,
                        std::function<void(const QStringList &)> opened) = 0;
};
