// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Host.h"

#include <QStringList>

#include <algorithm>

/// A machine that records requests and carries none of them out.
class RecordingHost : public Host {
public:
    /// The schemes that an application is registered for ("zbra").
    QStringList schemes;
    /// Every URL that was opened, in order.
    QStringList openedURLs;
    /// How many haptic taps there were.
    int taps = 0;

    [[nodiscard]] bool canOpenURL(const QString &url) override
    {
        return std::any_of(schemes.begin(), schemes.end(), [&](const QString &scheme) {
            return url.startsWith(scheme + QLatin1Char(':'));
        });
    }
    void openURL(const QString &url) override { openedURLs.append(url); }
    void impactOccurred(UIImpactFeedbackStyle) override { ++taps; }
    void observeAppearance(std::function<void(const DesktopAppearance &)>) override {}
};
