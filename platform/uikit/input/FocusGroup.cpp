// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/FocusGroup.h"

FocusGroup::FocusGroup(QQuickItem *parent) : QQuickItem(parent)
{
    connect(&m_keyFocus, &KeyFocus::changed, this, &FocusGroup::focusVisibleChanged);
}

void FocusGroup::setCurrent(QQuickItem *current)
{
    if (current == m_current) {
        return;
    }
    m_current = current;
    announceCurrent();
}

void FocusGroup::announceCurrent()
{
    m_spoken.set(hasActiveFocus() ? m_current.get() : nullptr);
}

bool FocusGroup::event(QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress; // which may change the current item
    const bool isHandled = QQuickItem::event(event);
    if (isKey) {
        m_keyFocus.begin();
    }
    return isHandled;
}

void FocusGroup::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    m_keyFocus.follow(event->reason());
    announceCurrent();
}

void FocusGroup::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    m_keyFocus.follow(Qt::OtherFocusReason);
    announceCurrent();
}
