// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/TableKeyboard.h"

/// Keeps the item that has the keyboard in a table's row in sight, or the insertion mark in it,
/// however the row or the room for the table changes, and makes its row the current one. An item in
/// a row that Tab does not come to leaves the keyboard to the table.
class FocusFollower : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(TableKeyboard *keyboard MEMBER m_keyboard REQUIRED FINAL)
    /// The window's item that has the keyboard; null for none.
    Q_PROPERTY(QQuickItem *focused MEMBER m_focused WRITE setFocused REQUIRED FINAL)
    /// The part of `focused` that is kept in sight.
    Q_PROPERTY(QRectF mark MEMBER m_mark WRITE setMark REQUIRED FINAL)
    /// The height of the table that the on-screen keyboard leaves free.
    Q_PROPERTY(double room MEMBER m_room WRITE setRoom REQUIRED FINAL)
    /// The room between the mark and the edges of the table.
    Q_PROPERTY(double margin MEMBER m_margin REQUIRED FINAL)

public:
    void setFocused(QQuickItem *focused);
    void setMark(const QRectF &mark);
    void setRoom(double room);

private:
    void revealSoon();
    void reveal();
    void keepInSight(TableList &list);

    QPointer<TableKeyboard> m_keyboard;
    QPointer<QQuickItem> m_focused;
    QRectF m_mark;
    double m_room = 0;
    double m_margin = 0;
    bool m_isDue = false;
};
