// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/UIFocusItem.h"

UIFocusItem::UIFocusItem(QQuickItem *parent) : QQuickItem(parent)
{
    connect(&m_keyFocus, &KeyFocus::changed, this, &UIFocusItem::focusVisibleChanged);
}

void UIFocusItem::setCurrent(QQuickItem *current)
{
    if (current == m_current) {
        return;
    }
    m_current = current;
    Q_EMIT currentChanged();
    tellCurrent();
}

void UIFocusItem::tellCurrent()
{
    m_spoken.set(hasActiveFocus() ? m_current.get() : nullptr);
}

bool UIFocusItem::event(QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress; // the key may change what is current
    const bool isHandled = QQuickItem::event(event);
    if (isKey) {
        m_keyFocus.begin();
    }
    return isHandled;
}

void UIFocusItem::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    m_keyFocus.follow(event->reason());
    tellCurrent();
}

void UIFocusItem::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    m_keyFocus.follow(Qt::OtherFocusReason);
    tellCurrent();
}
