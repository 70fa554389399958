// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/LifeCycle.h"

#include "platform/uikit/base/UIApplicationDelegate.h"

#include <utility>

void LifeCycle::enter(Qt::ApplicationState state)
{
    const bool active = state == Qt::ApplicationActive;
    const bool background = state == Qt::ApplicationHidden || state == Qt::ApplicationSuspended;
    const bool wasActive = std::exchange(m_active, active);
    const bool wasBackground = std::exchange(m_background, background);

    if (wasActive && !active) {
        m_delegate.applicationWillResignActive();
    }
    if (!wasBackground && background) {
        m_delegate.applicationDidEnterBackground();
    }
    if (wasBackground && !background) {
        m_delegate.applicationWillEnterForeground();
    }
    if (!wasActive && active) {
        m_delegate.applicationDidBecomeActive();
    }
}
