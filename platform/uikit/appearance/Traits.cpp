// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/Traits.h"

#include "platform/uikit/base/UIApplication.h"

#include <QJSEngine>

Traits *Traits::create(QQmlEngine *, QJSEngine *)
{
    Traits &traits = UIApplication::sharedApplication()->traits();
    QJSEngine::setObjectOwnership(&traits, QJSEngine::CppOwnership);
    return &traits;
}

QColor Traits::labelColor() const
{
    return UIColor::labelColor().toQColor(isDark());
}

QColor Traits::secondaryLabelColor() const
{
    return isDark() ? QColor(235, 235, 245, 153) : QColor(60, 60, 67, 199);
}

QColor Traits::placeholderColor() const
{
    return secondaryLabelColor();
}

QColor Traits::separatorColor() const
{
    return UIColor::separatorColor().toQColor(isDark());
}

QColor Traits::accentColor() const
{
    return isDark() ? QColor(90, 170, 255) : QColor(0, 95, 204);
}

QColor Traits::backgroundColor() const
{
    return UIColor::systemGroupedBackgroundColor().toQColor(isDark());
}

QColor Traits::barColor() const
{
    return isDark() ? QColor(22, 22, 23) : QColor(249, 249, 249);
}

QColor Traits::alertColor() const
{
    return isDark() ? QColor(44, 44, 46) : QColor(245, 245, 247);
}

QColor Traits::pressedAlertColor() const
{
    return isDark() ? QColor(56, 56, 59) : QColor(224, 224, 229);
}

QColor Traits::unselectedTabColor() const
{
    return isDark() ? QColor(128, 128, 130) : QColor(112, 112, 116);
}

void Traits::setDesktopAppearance(const DesktopAppearance &appearance)
{
    if (m_desktop == appearance) {
        return;
    }
    m_desktop = appearance;
    Q_EMIT changed();
}

void Traits::setOverride(const std::optional<DesktopAppearance> &appearance)
{
    if (m_override == appearance) {
        return;
    }
    m_override = appearance;
    Q_EMIT changed();
}

void Traits::setSystemVersion(double version)
{
    if (qFuzzyCompare(m_systemVersion, version)) {
        return;
    }
    m_systemVersion = version;
    Q_EMIT changed();
}
