// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/UITapArea.h"

#include "platform/uikit/qml/HitTest.h"

#include <QQuickWindow>

void UITapArea::setReceiver(UIView *receiver)
{
    if (m_receiver == receiver)
        return;
    m_receiver = receiver;
    Q_EMIT receiverChanged();
}

void UITapArea::tap(const QPointF &point)
{
    if (!m_receiver || !window())
        return;
    const QQuickItem *hit = HitTest::itemAt(window()->contentItem(), mapToScene(point));
    if (!hit || !hit->flags().testFlag(ItemAcceptsInputMethod))
        m_receiver->tapped();
}
