// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Host.h"

#include <chrono>
#include <memory>

class DesktopPalette;
class DesktopSettings;
class SessionBus;
class SingleInstance;

/// The port to a Linux phone or desktop: links through the desktop's scheme handlers; haptics,
/// appearance and the one instance over the session bus. What the machine does not have is silently
/// absent. Made after the application object, destroyed before it; main thread only.
class LinuxHost final : public Host {
public:
    /// How long a start waits for the desktop, all in all.
    static constexpr std::chrono::milliseconds patience = std::chrono::seconds(1);

    /// Makes sure that the session bus does not hold up the application object, whose plugins use
    /// it: one that does not answer is out of use from then on. Before that object is made.
    /// Returns what is left of `patience`.
    [[nodiscard]] static std::chrono::milliseconds prepare();

    /// `applicationId` is the reverse-DNS name under which the desktop knows the application.
    /// `patienceLeft` is what `prepare` returned.
    explicit LinuxHost(const QString &applicationId,
                       std::chrono::milliseconds patienceLeft = patience);
    ~LinuxHost() override;
    Q_DISABLE_COPY_MOVE(LinuxHost)

    [[nodiscard]] bool canOpenURL(const QString &url) override;
    void openURL(const QString &url) override;
    void impactOccurred(UIImpactFeedbackStyle style) override;
    void observeAppearance(std::function<void(const DesktopAppearance &)> changed) override;
    [[nodiscard]] bool
    claimSingleInstance(const QStringList &urls,
                        std::function<void(const QStringList &)> opened) override;
    /// A later start of the application is on its own from now on.
    void releaseSingleInstance();

private:
    void reportAppearance();

    QString m_applicationId;
    std::chrono::milliseconds m_patienceLeft;
    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<DesktopSettings> m_settings;
    std::unique_ptr<DesktopPalette> m_palette;
    std::unique_ptr<SingleInstance> m_instance;
    std::function<void(const DesktopAppearance &)> m_appearanceChanged;
    DesktopAppearance m_told;
};
