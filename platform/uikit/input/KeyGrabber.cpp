// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/KeyGrabber.h"

#include <QCoreApplication>

void KeyGrabber::setCurrent(QQuickItem *current)
{
    if (current == m_current) {
        return;
    }
    m_current = current;
    Q_EMIT currentChanged();
    m_spoken.set(current);
}

void KeyGrabber::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange && watched() && !data.window) {
        m_spoken.set(nullptr);
        if (QQuickItem *focused = watched()->activeFocusItem()) {
            ScreenReaderFocus::tell(*focused);
        }
    }
    WindowWatcher::itemChange(change, data);
}

bool KeyGrabber::eventFilter(QObject *watched, QEvent *event)
{
    switch (static_cast<int>(event->type())) {
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
