// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxHost.h"

#include "platform/linux/ActivationTokens.h"
#include "platform/linux/DesktopPalette.h"
#include "platform/linux/DesktopSettings.h"
#include "platform/linux/HapticFeedback.h"
#include "platform/linux/Links.h"
#include "platform/linux/PortalLinks.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/SingleInstance.h"
#include "platform/linux/TextScale.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QGuiApplication>
#include <QScreen>

#include <malloc.h>

std::chrono::milliseconds LinuxHost::prepare()
{
    // The arena of another thread would never give back the free memory at its end.
    mallopt(M_ARENA_MAX, 1);
    ActivationTokens::prepareEnvironment();
    const QDeadlineTimer deadline(startTimeout);
    if (!SessionBus::probe(deadline)) {
        qInfo("The session bus does not answer: this start does without it.");
    }
    return std::chrono::milliseconds(deadline.remainingTime());
}

LinuxHost::LinuxHost(const QString &applicationId, std::chrono::milliseconds remainingTime)
    : m_applicationId(applicationId),
      m_remainingTime(remainingTime),
      m_bus(std::make_unique<SessionBus>())
{
}

LinuxHost::~LinuxHost() = default;

bool LinuxHost::canOpenURL(const QString &url)
{
    return Links::hasHandler(url)
        || (PortalLinks::areUsed() && PortalLinks::hasHandler(m_bus->connection(), url));
}

void LinuxHost::openURL(const QString &url)
{
    if (PortalLinks::areUsed() && !Links::hasHandler(url)) {
        PortalLinks::open(m_bus->connection(), url);
    } else {
        Links::open(url);
    }
}

void LinuxHost::impactOccurred(UIImpactFeedbackStyle /*style*/)
{
    triggerButtonFeedback(m_bus->connection(), m_applicationId);
}

void LinuxHost::observeAppearance(std::function<void(const DesktopAppearance &)> changed)
{
    m_appearanceChanged = std::move(changed);
    m_reportedAppearance = {};
    if (!m_palette) {
        m_palette = std::make_unique<DesktopPalette>([this] { reportAppearance(); });
        m_settings =
            std::make_unique<DesktopSettings>(m_bus->connection(), [this] { reportAppearance(); });
        QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, m_palette.get(),
                         [this] { followScreen(); });
        return followScreen();
    }
    reportAppearance();
}

// The geometry of a screen in points changes with its pixel ratio.
void LinuxHost::followScreen()
{
    QObject::disconnect(m_screenChanges);
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        m_screenChanges = QObject::connect(screen, &QScreen::geometryChanged, m_palette.get(),
                                           [this] { reportAppearance(); });
    }
    reportAppearance();
}

void LinuxHost::reportAppearance()
{
    DesktopAppearance appearance = m_settings->appearance();
    if (appearance.style == UIUserInterfaceStyle::Unspecified) {
        appearance.style = m_palette->style();
    }
    appearance.textScale = TextScale::remaining(appearance.textScale);
    if (appearance == m_reportedAppearance) {
        return;
    }
    m_reportedAppearance = appearance;
    m_appearanceChanged(appearance);
}

bool LinuxHost::claimSingleInstance(const QStringList &urls,
                                    std::function<void(const QStringList &)> opened)
{
    if (!m_bus->isConnected()) {
        if (!SessionBus::isDisabled()) {
            qInfo("The session bus cannot be reached: this start is on its own.");
        }
        return true;
    }
    m_instance =
        std::make_unique<SingleInstance>(m_bus->connection(), m_applicationId, std::move(opened));
    return m_instance->claimOrHandOver(urls, QDeadlineTimer(m_remainingTime));
}

void LinuxHost::releaseSingleInstance()
{
    m_instance.reset();
}
