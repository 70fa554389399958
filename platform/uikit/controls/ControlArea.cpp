// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/ControlArea.h"

#include "platform/uikit/appearance/Durations.h"
#include "platform/uikit/appearance/Metrics.h"
#include "platform/uikit/input/HitTest.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QQuickWindow>

namespace {

bool scrolls(const QQuickItem &item)
{
    for (const QQuickItem *parent = item.parentItem(); parent; parent = parent->parentItem()) {
        if (parent->inherits("QQuickFlickable") && parent->property("interactive").toBool()) {
            return true;
        }
    }
    return false;
}

} // namespace

ControlArea::ControlArea(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setActiveFocusOnTab(true);
    m_press.setSingleShot(true);
    m_press.callOnTimeout(this, &ControlArea::press);
    connect(&m_keyFocus, &KeyFocus::changed, this, &ControlArea::focusVisibleChanged);
}

ControlArea::~ControlArea()
{
    cancel();
}

void ControlArea::setReceiver(UIControl *receiver)
{
    if (m_receiver == receiver) {
        return;
    }
    cancel();
    m_receiver = receiver;
    Q_EMIT receiverChanged();
}

QRectF ControlArea::reach() const
{
    const double across = qMax(0.0, (Metrics::smallestTarget - width()) / 2);
    const double along = qMax(0.0, (Metrics::smallestTarget - height()) / 2);
    return boundingRect().adjusted(-across, -along, across, along);
}

bool ControlArea::contains(const QPointF &point) const
{
    if (boundingRect().contains(point)) {
        return true;
    }
    if (!window() || !reach().contains(point)) {
        return false;
    }
    const QQuickItem *other = HitTest::itemAt(window()->contentItem(), mapToScene(point));
    return !other || other->isAncestorOf(this);
}

void ControlArea::begin(const QPointF &point)
{
    m_at = point;
    if (scrolls(*this)) {
        m_press.start(Durations::press);
    } else {
        press();
    }
}

void ControlArea::press()
{
    m_press.stop();
    if (!m_yields) {
        keepGrab(true); // no page scrolls by this touch from now on
        QGuiApplication::inputMethod()->commit(); // as in activate()
    }
    if (m_receiver) {
        m_receiver->beginTracking();
    }
    if (m_receiver && !reach().contains(m_at)) { // it has left while the press waited
        m_receiver->continueTracking(false);
    }
}

void ControlArea::keepGrab(bool keep)
{
    setKeepMouseGrab(keep);
    setKeepTouchGrab(keep);
}

void ControlArea::move(const QPointF &point)
{
    m_at = point;
    if (m_receiver && !m_press.isActive()) {
        m_receiver->continueTracking(reach().contains(point));
    }
}

void ControlArea::end(const QPointF &point)
{
    m_touch = -1;
    m_at = point;
    if (m_press.isActive()) {
        press();
    }
    keepGrab(false);
    if (m_receiver) {
        m_receiver->endTracking(reach().contains(point));
    }
}

void ControlArea::cancel()
{
    m_touch = -1;
    m_press.stop();
    keepGrab(false);
    if (m_receiver) {
        m_receiver->cancelTracking();
    }
}

void ControlArea::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    begin(event->position());
}

void ControlArea::mouseMoveEvent(QMouseEvent *event)
{
    move(event->position());
}

void ControlArea::mouseReleaseEvent(QMouseEvent *event)
{
    end(event->position());
}

void ControlArea::mouseUngrabEvent()
{
    cancel();
}

void ControlArea::touchEvent(QTouchEvent *event)
{
    if (event->type() == QEvent::TouchCancel) {
        cancel();
        return;
    }
    event->accept();
    const QList<QEventPoint> points = event->points();
    for (const QEventPoint &point : points) {
        if (m_touch < 0 && point.state() == QEventPoint::Pressed) {
            m_touch = point.id();
            begin(point.position());
        } else if (point.id() == m_touch && point.state() == QEventPoint::Updated) {
            move(point.position());
        } else if (point.id() == m_touch && point.state() == QEventPoint::Released) {
            end(point.position());
        }
    }
}

void ControlArea::touchUngrabEvent()
{
    cancel();
}

void ControlArea::activate()
{
    QGuiApplication::inputMethod()->commit(); // the action reads the text that is being composed
    if (m_receiver) {
        m_receiver->activate();
    }
}

void ControlArea::keyPressEvent(QKeyEvent *event)
{
    const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return
        || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Select;
    event->setAccepted(presses);
    if (presses) {
        m_keyFocus.begin();
    }
    if (presses && !event->isAutoRepeat()) {
        activate();
    }
}

void ControlArea::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    m_keyFocus.follow(event->reason());
}

void ControlArea::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    m_keyFocus.follow(Qt::OtherFocusReason);
}
