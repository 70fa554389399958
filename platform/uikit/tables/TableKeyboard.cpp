// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/TableKeyboard.h"

TableKeyboard::TableKeyboard()
{
    connect(this, &QQuickItem::parentChanged, this, &TableKeyboard::updateCurrent);
    connect(this, &FocusGroup::focusVisibleChanged, this, &TableKeyboard::showFirstRow);
}

TableKeyboard::~TableKeyboard() = default;

void TableKeyboard::setList(QQuickItem *list)
{
    m_list = TableList(list);
    // Only then are its rows enabled as well.
    connect(list, &QQuickItem::enabledChanged, this, &TableKeyboard::updateCurrent);
    connect(list, SIGNAL(currentItemChanged()), this, SLOT(followCurrentItem()));
    Q_EMIT listChanged();
    followCurrentItem();
}

void TableKeyboard::followCurrentItem()
{
    if (m_currentItem) {
        m_currentItem->disconnect(this);
    }
    m_currentItem = m_list.currentItem();
    if (m_currentItem) {
        connect(m_currentItem, SIGNAL(cellChanged()), this, SLOT(followCurrentCell()));
    }
    followCurrentCell();
}

void TableKeyboard::followCurrentCell()
{
    if (m_currentCell) {
        m_currentCell->disconnect(this);
    }
    m_currentCell = cellOf(m_currentItem);
    if (m_currentCell) {
        connect(m_currentCell, &UIView::changed, this, &TableKeyboard::updateCurrent);
    }
    updateCurrent();
}

void TableKeyboard::updateCurrent()
{
    // Disabled, a row has no controls.
    QQuickItem *item = isEnabled() ? accessibleItem(m_currentItem) : nullptr;
    setCurrent(item ? item : parentItem());
}

void TableKeyboard::showFirstRow()
{
    if (m_list.view() && isFocusVisible() && m_list.currentIndex() < 0) {
        const int top = m_list.indexAt(qMax(m_list.originY(), m_list.contentY()));
        goTo(adjacentRow(top - 1, 1));
    }
}

UITableViewCell *TableKeyboard::cellOf(const QQuickItem *item)
{
    return item ? item->property("cell").value<UITableViewCell *>() : nullptr;
}

// The first item that Tab comes to in the drawing of a row without a label; null for none.
QQuickItem *TableKeyboard::firstControl(QQuickItem *item)
{
    const UITableViewCell *cell = cellOf(item);
    if (!item || (cell && !cell->accessibilityLabel().isEmpty())) {
        return nullptr;
    }
    QQuickItem *inside = item->nextItemInFocusChain();
    return inside && item->contains(item->mapFromItem(inside, QPointF(1, 1))) ? inside : nullptr;
}

// The item that screen readers are told of: the row if it has a label, or else its first control.
QQuickItem *TableKeyboard::accessibleItem(QQuickItem *item)
{
    const UITableViewCell *cell = cellOf(item);
    return cell && !cell->accessibilityLabel().isEmpty()
        ? qobject_cast<QQuickItem *>(item->property("item").value<QObject *>())
        : firstControl(item);
}

// The next row that way; rows that are known to have no label and no control are passed over. -1
// for none.
int TableKeyboard::adjacentRow(int entry, int step) const
{
    int next = m_table->entries()->adjacentRow(entry, step);
    for (QQuickItem *item = m_list.itemAt(next); item && !accessibleItem(item);
         item = m_list.itemAt(next)) {
        next = m_table->entries()->adjacentRow(next, step);
    }
    return next;
}

bool TableKeyboard::isTall() const
{
    const QQuickItem *item = m_list.currentItem();
    return item && item->height() > m_list.height();
}

bool TableKeyboard::isTallInSight() const
{
    const QQuickItem *item = m_list.currentItem();
    return isTall() && item->y() < m_list.contentY() + m_list.height()
        && item->y() + item->height() > m_list.contentY();
}

void TableKeyboard::goTo(int entry)
{
    if (entry < 0) {
        return;
    }
    using Position = TableList::Position;
    const bool down = entry > m_list.currentIndex();
    m_list.setCurrentIndex(entry);
    const bool tall = isTall();
    if (adjacentRow(entry, -1) < 0 && (down || !tall)) {
        m_list.showBeginning(); // the space above the first row is seen as well
    } else if (adjacentRow(entry, 1) < 0 && !(down && tall)) {
        m_list.showEnd();
    } else if (tall) {
        m_list.show(entry, down ? Position::Beginning : Position::End);
    } else {
        m_list.show(entry, Position::Contain);
    }
}

// Scrolls a tall row; false if nothing more of it can be seen that way.
bool TableKeyboard::scrollWithin(int step, double by)
{
    if (!isTallInSight()) {
        return false;
    }
    const QQuickItem *item = m_list.currentItem();
    const double above = m_list.contentY() - item->y();
    const double below = item->height() - m_list.height() - above;
    const double rest = step > 0 ? below : above;
    if (rest < 1) {
        return false;
    }
    m_list.setContentY(m_list.contentY() + step * qMin(rest, by));
    return true;
}

void TableKeyboard::moveByLine(int step)
{
    if (scrollWithin(step, 2 * m_line)) {
        return;
    }
    const int next = adjacentRow(m_list.currentIndex(), step);
    if (next >= 0) {
        goTo(next);
    } else if (step > 0) {
        m_list.showEnd(); // the footer of the last row is seen as well
    } else {
        m_list.showBeginning();
    }
}

void TableKeyboard::moveByPage(int step)
{
    if (isTallInSight()) {
        if (!scrollWithin(step, m_list.height() - m_line)) {
            goTo(adjacentRow(m_list.currentIndex(), step));
        }
        return;
    }
    using Position = TableList::Position;
    const int edge = m_list.indexAt(m_list.contentY() + (step > 0 ? m_list.height() - 1 : 0));
    if (edge >= 0) {
        m_list.show(edge, step > 0 ? Position::Beginning : Position::End);
        m_list.returnToBounds();
        goTo(adjacentRow(edge - step, step));
    } else {
        m_list.returnToBounds();
        moveToEnd(step);
    }
}

void TableKeyboard::moveToEnd(int step)
{
    goTo(step > 0 ? adjacentRow(m_list.count(), -1) : adjacentRow(-1, 1));
}

// Activates the current row, or gives the keyboard to the first control of one without a label.
void TableKeyboard::activateCurrent()
{
    if (QQuickItem *inside = firstControl(m_list.currentItem())) {
        inside->forceActiveFocus(Qt::TabFocusReason);
    } else {
        m_table->activateEntry(m_list.currentIndex());
    }
}

void TableKeyboard::keyPressEvent(QKeyEvent *event)
{
    if (!m_table || !m_list.view()) {
        return event->ignore();
    }
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        return moveByLine(event->key() == Qt::Key_Up ? -1 : 1);
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return moveByPage(event->key() == Qt::Key_PageUp ? -1 : 1);
    case Qt::Key_Home:
        moveToEnd(-1);
        return m_list.showBeginning();
    case Qt::Key_End:
        moveToEnd(1);
        return m_list.showEnd();
    case Qt::Key_Space:
        return event->isAutoRepeat() ? event->accept() : activateCurrent();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return activateCurrent();
    default:
        event->ignore();
    }
}
