// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Host.h"

#include <QMetaObject>
#include <QStringList>

#include <chrono>
#include <memory>

class DesktopPalette;
class DesktopSettings;
class SessionBus;
class SingleInstance;

/// The port to a Linux phone or desktop: links through the desktop's scheme handlers, or in a
/// sandbox through its portal; haptics, appearance and the single instance over the session bus.
/// Features that the machine lacks do nothing. Made after the application object, destroyed before
/// it; main thread only.
class LinuxHost final : public Host {
public:
    /// The total time that a start waits for the desktop.
    static constexpr std::chrono::milliseconds startTimeout = std::chrono::seconds(1);

    /// Disables a session bus that does not answer: it would delay the plugins of the application
    /// object. Where none is running, keeps libraries from starting one. Call it before that object
    /// is made. Returns the rest of `startTimeout`.
    [[nodiscard]] static std::chrono::milliseconds prepare();

    /// `applicationId`: the application's reverse-DNS name on the desktop. `remainingTime`: the
    /// result of `prepare`.
    explicit LinuxHost(const QString &applicationId,
                       std::chrono::milliseconds remainingTime = startTimeout);
    ~LinuxHost() override;
    Q_DISABLE_COPY_MOVE(LinuxHost)

    [[nodiscard]] bool canOpenURL(const QString &url) override;
    void openURL(const QString &url) override;
    void impactOccurred(UIImpactFeedbackStyle style) override;
    void observeAppearance(std::function<void(const DesktopAppearance &)> changed) override;
    /// Claims to be the only instance on this session. If another one runs already, hands `urls`
    /// to it (or asks it to come to the front when there are none) and returns false. Returns true
    /// when this process is the one, and where there is no session bus or the other instance does
    /// not answer. Waits for no longer than the remaining time.
    /// `opened` is called for every list of URLs that a later start hands over, empty for a mere
    /// activation.
    [[nodiscard]] bool claimSingleInstance(const QStringList &urls,
                                           std::function<void(const QStringList &)> opened);
    /// A later start of the application runs as an instance of its own.
    void releaseSingleInstance();

private:
    void followScreen();
    void reportAppearance();

    QString m_applicationId;
    std::chrono::milliseconds m_remainingTime;
    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<DesktopSettings> m_settings;
    std::unique_ptr<DesktopPalette> m_palette;
    QMetaObject::Connection m_screenChanges;
    std::unique_ptr<SingleInstance> m_instance;
    std::function<void(const DesktopAppearance &)> m_appearanceChanged;
    DesktopAppearance m_reportedAppearance;
};
