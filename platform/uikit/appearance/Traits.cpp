// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/Traits.h"

#include <QJSEngine>

namespace {
Traits *sharedTraits = nullptr;
}

Traits::Traits(const DesktopAppearance &desktop) : m_desktop(desktop)
{
    Q_ASSERT(!sharedTraits);
    sharedTraits = this;
}

Traits::~Traits()
{
    sharedTraits = nullptr;
}

Traits &Traits::current()
{
    Q_ASSERT(sharedTraits);
    return *sharedTraits;
}

Traits *Traits::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(sharedTraits, QJSEngine::CppOwnership);
    return sharedTraits;
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
