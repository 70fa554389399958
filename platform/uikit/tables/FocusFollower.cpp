// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/FocusFollower.h"

void FocusFollower::setFocused(QQuickItem *focused)
{
    if (m_focused != focused) {
        m_focused = focused;
        revealSoon();
    }
}

void FocusFollower::setMark(const QRectF &mark)
{
    if (m_mark != mark) {
        m_mark = mark;
        revealSoon();
    }
}

void FocusFollower::setRoom(double room)
{
    if (!qFuzzyCompare(m_room, room)) {
        m_room = room;
        revealSoon();
    }
}

// Once, when everything that changes together has changed.
void FocusFollower::revealSoon()
{
    if (!std::exchange(m_isDue, true)) {
        QMetaObject::invokeMethod(this, &FocusFollower::reveal, Qt::QueuedConnection);
    }
}

void FocusFollower::reveal()
{
    m_isDue = false;
    if (!m_focused || !m_keyboard || !m_keyboard->list()) {
        return;
    }
    TableList list(m_keyboard->list());
    if (m_focused == m_keyboard->parentItem() || m_focused == list.view()) {
        m_keyboard->forceActiveFocus(); // the row that had it is gone
        return;
    }
    const QQuickItem *row = m_focused;
    while (row && row->parentItem() != list.contentItem()) {
        row = row->parentItem();
    }
    if (!row) {
        return;
    }
    const double before = list.contentY();
    list.setCurrentIndex(row->property("index").toInt()); // or it would go when out of sight
    list.setContentY(before);
    keepInSight(list);
    if (!m_focused->activeFocusOnTab()) {
        m_keyboard->forceActiveFocus(); // a screen reader gave it to the row
    }
}

void FocusFollower::keepInSight(TableList &list)
{
    list.forceLayout(); // typing may have changed the height of the row
    const QRectF place = m_focused->mapRectToItem(list.contentItem(), m_mark);
    const double lowest = place.bottom() + m_margin - m_room;
    list.setContentY(qMin(place.top() - m_margin, qMax(list.contentY(), lowest)));
}
