// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/UIFocusItem.h"

void UIFocusItem::setByKey(bool byKey)
{
    m_byKey = byKey;
    Q_EMIT focusVisibleChanged();
}

bool UIFocusItem::event(QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress; // the key may change what is current
    const bool isHandled = QQuickItem::event(event);
    if (isKey && !m_byKey)
        setByKey(true);
    return isHandled;
}

void UIFocusItem::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        m_byKey = true;
    Q_EMIT focusVisibleChanged();
}

void UIFocusItem::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    Q_EMIT focusVisibleChanged();
}
