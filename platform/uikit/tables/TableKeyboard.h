// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/input/FocusGroup.h"
#include "platform/uikit/tables/TableList.h"
#include "platform/uikit/tables/UITableView.h"

/// Has the keyboard for the rows of a table: arrows, page keys, Home and End move the current row,
/// Return and Space activate it. A row that is higher than the table scrolls to its end before the
/// next one is current. Screen readers are told of the current row, or of the first control in
/// a row that has no label, or else of the table.
class TableKeyboard : public FocusGroup {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(UITableView *table MEMBER m_table NOTIFY tableChanged REQUIRED FINAL)
    /// The ListView that draws the table.
    Q_PROPERTY(QQuickItem *list READ list WRITE setList NOTIFY listChanged REQUIRED FINAL)
    /// The height of a usual row, in points: a tall one scrolls by two of it.
    Q_PROPERTY(double line MEMBER m_line REQUIRED FINAL)

public:
    TableKeyboard();
    ~TableKeyboard() override;

    [[nodiscard]] QQuickItem *list() const { return m_list.view(); }
    void setList(QQuickItem *list);

Q_SIGNALS:
    void tableChanged();
    void listChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS: // connected to signals that QML declares
    void followCurrentItem();
    void followCurrentCell();

private:
    [[nodiscard]] static UITableViewCell *cellOf(const QQuickItem *item);
    [[nodiscard]] static QQuickItem *firstControl(QQuickItem *item);
    [[nodiscard]] static QQuickItem *accessibleItem(QQuickItem *item);
    void updateCurrent();
    void showFirstRow();

    [[nodiscard]] int adjacentRow(int entry, int step) const;
    [[nodiscard]] bool isTall() const;
    [[nodiscard]] bool isTallInSight() const;
    void goTo(int entry);
    [[nodiscard]] bool scrollWithin(int step, double by);
    void moveByLine(int step);
    void moveByPage(int step);
    void moveToEnd(int step);
    void activateCurrent();

    QPointer<UITableView> m_table;
    TableList m_list;
    double m_line = 0;
    QPointer<QQuickItem> m_currentItem;
    QPointer<UITableViewCell> m_currentCell;
};
