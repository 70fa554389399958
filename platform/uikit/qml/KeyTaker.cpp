// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/KeyTaker.h"

#include <QCoreApplication>

bool KeyTaker::eventFilter(QObject *watched, QEvent *event)
{
    switch (int(event->type())) {
    case QEvent::ShortcutOverride:
        event->accept(); // no shortcut either
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        QCoreApplication::sendEvent(this, event);
        return true;
    default:
        return WindowWatcher::eventFilter(watched, event);
    }
}
