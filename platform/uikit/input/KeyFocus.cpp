// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/KeyFocus.h"

#include <QEvent>
#include <QQuickItem>
#include <QQuickWindow>

bool KeyFocus::isVisible() const
{
    return m_byKey && m_item.hasActiveFocus();
}

void KeyFocus::begin()
{
    if (m_byKey || !m_item.window()) {
        return;
    }
    m_byKey = true;
    m_item.window()->installEventFilter(this);
    Q_EMIT changed();
}

void KeyFocus::follow(Qt::FocusReason reason)
{
    // For other reasons, such as an alert's end, it stays as it was.
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason) {
        begin();
    }
    Q_EMIT changed();
}

bool KeyFocus::eventFilter(QObject *window, QEvent *event)
{
    const bool presses = event->type() == QEvent::MouseButtonPress
        || event->type() == QEvent::TouchBegin || event->type() == QEvent::TabletPress;
    if (presses) {
        m_byKey = false;
        window->removeEventFilter(this);
        Q_EMIT changed();
    }
    return false;
}
