// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopPalette.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

DesktopPalette::DesktopPalette(std::function<void()> changed) : m_changed(std::move(changed))
{
    if (QCoreApplication *application = QCoreApplication::instance()) {
        application->installEventFilter(this);
    }
}

UIUserInterfaceStyle DesktopPalette::style() const
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return UIUserInterfaceStyle::Unspecified;
    }
    const QPalette palette = QGuiApplication::palette();
    const int ground = palette.color(QPalette::Window).lightness();
    const int text = palette.color(QPalette::WindowText).lightness();
    return ground < text ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Unspecified;
}

bool DesktopPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange
        && watched == QCoreApplication::instance()) {
        m_changed();
    }
    return false;
}
