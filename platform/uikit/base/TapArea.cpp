// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/base/TapArea.h"

#include "platform/uikit/input/HitTest.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QStyleHints>

namespace {

// Whether `item` edits text, or lies in an item that does.
bool isEditor(const QQuickItem *item)
{
    while (item && !item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod)) {
        item = item->parentItem();
    }
    return item;
}

// Whether it is of the left button, and not synthesised from a touch: that was seen as the touch.
bool isTap(const QMouseEvent &event)
{
    const bool other = event.button() != Qt::LeftButton && event.button() != Qt::NoButton;
    return !other && event.source() == Qt::MouseEventNotSynthesized;
}

} // namespace

void TapArea::setReceiver(UIView *receiver)
{
    if (m_receiver == receiver) {
        return;
    }
    if (m_receiver) {
        m_receiver->disconnect(this);
    }
    m_receiver = receiver;
    if (m_receiver) {
        connect(m_receiver, &UIView::changed, this, &TapArea::followReceiver);
    }
    followReceiver();
    Q_EMIT receiverChanged();
}

void TapArea::followReceiver()
{
    setWatching(m_receiver && m_receiver->recognizesTaps());
}

bool TapArea::eventFilter(QObject *watched, QEvent *event)
{
    const bool touch = event->type() == QEvent::TouchBegin || event->type() == QEvent::TouchUpdate
        || event->type() == QEvent::TouchEnd;
    const bool mouse = event->type() == QEvent::MouseButtonPress
        || event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonRelease;
    if (event->type() == QEvent::TouchCancel) {
        m_press.reset();
    }
    if (touch || (mouse && isTap(*static_cast<QMouseEvent *>(event)))) {
        watch(*static_cast<QPointerEvent *>(event));
    }
    return WindowWatcher::eventFilter(watched, event);
}

void TapArea::watch(const QPointerEvent &event)
{
    const QPointF at = event.points().first().position();
    if (event.isBeginEvent()) {
        m_press = takes(at) ? std::optional(at) : std::nullopt;
    }
    if (!m_press) {
        return;
    }
    const bool still =
        (at - *m_press).manhattanLength() < QGuiApplication::styleHints()->startDragDistance();
    if (event.pointCount() > 1 || !still) {
        m_press.reset();
    } else if (event.isEndEvent()) {
        m_press.reset();
        if (m_receiver && isVisible() && isEnabled()) {
            m_receiver->tapped();
        }
    }
}

bool TapArea::takes(const QPointF &scene) const
{
    if (!m_receiver || !isVisible() || !isEnabled()
        || !parentItem()->contains(parentItem()->mapFromScene(scene))) {
        return false;
    }
    const QQuickItem *hit = HitTest::itemAt(window()->contentItem(), scene);
    const bool own = !hit || hit->isAncestorOf(this) || parentItem()->isAncestorOf(hit);
    return own && !isEditor(hit);
}
