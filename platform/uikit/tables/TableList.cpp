// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/TableList.h"

QQuickItem *TableList::itemAt(int entry) const
{
    QQuickItem *found = nullptr;
    QMetaObject::invokeMethod(m_view, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, found),
                              Q_ARG(int, entry));
    return found;
}

int TableList::indexAt(double y) const
{
    int found = -1;
    QMetaObject::invokeMethod(m_view, "indexAt", Q_RETURN_ARG(int, found), Q_ARG(double, 0),
                              Q_ARG(double, y));
    return found;
}

void TableList::show(int entry, Position position)
{
    QMetaObject::invokeMethod(m_view, "positionViewAtIndex", Q_ARG(int, entry),
                              Q_ARG(int, static_cast<int>(position)));
}
