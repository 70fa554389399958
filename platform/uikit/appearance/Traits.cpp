// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/Traits.h"

#include <QGuiApplication>
#include <QJSEngine>
#include <QScreen>

namespace {
Traits *sharedTraits = nullptr;
}

Traits::Traits(const DesktopAppearance &desktop) : m_desktop(desktop)
{
    Q_ASSERT(!sharedTraits);
    sharedTraits = this;
    if (auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::layoutDirectionChanged, this, &Traits::changed);
        connect(application, &QGuiApplication::primaryScreenChanged, this, &Traits::changed);
    }
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

bool Traits::isRightToLeft() const
{
    return QGuiApplication::isRightToLeft();
}

double Traits::displayScale() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1;
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
