// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>

/// The QML ListView that draws a table, for C++. An entry is an index of its model.
class TableList {
public:
    /// ListView's own values.
    enum class Position { Beginning = 0, End = 2, Contain = 4 };

    TableList() = default;
    explicit TableList(QQuickItem *view) : m_view(view) {}

    [[nodiscard]] QQuickItem *view() const { return m_view; }
    [[nodiscard]] QQuickItem *contentItem() const { return item("contentItem"); }

    [[nodiscard]] int count() const { return m_view->property("count").toInt(); }
    [[nodiscard]] int currentIndex() const { return m_view->property("currentIndex").toInt(); }
    void setCurrentIndex(int entry) { m_view->setProperty("currentIndex", entry); }
    /// The drawing of the current entry; null for none.
    [[nodiscard]] QQuickItem *currentItem() const { return item("currentItem"); }
    /// The drawing of an entry; null where it is not drawn.
    [[nodiscard]] QQuickItem *itemAt(int entry) const;
    /// The entry that is drawn at `y` of the contents; -1 for none.
    [[nodiscard]] int indexAt(double y) const;

    // The part of the contents that is shown, in points.
    [[nodiscard]] double height() const { return m_view->height(); }
    [[nodiscard]] double contentY() const { return number("contentY"); }
    void setContentY(double y) { m_view->setProperty("contentY", y); }
    /// Where the contents begin, which moves while heights are estimated.
    [[nodiscard]] double originY() const { return number("originY"); }

    void show(int entry, Position position);
    void showBeginning() { QMetaObject::invokeMethod(m_view, "positionViewAtBeginning"); }
    void showEnd() { QMetaObject::invokeMethod(m_view, "positionViewAtEnd"); }
    void returnToBounds() { QMetaObject::invokeMethod(m_view, "returnToBounds"); }
    /// Gives every drawn entry its height and its place at once.
    void forceLayout() { QMetaObject::invokeMethod(m_view, "forceLayout"); }

private:
    [[nodiscard]] QQuickItem *item(const char *property) const
    {
        return m_view->property(property).value<QQuickItem *>();
    }
    [[nodiscard]] double number(const char *property) const
    {
        return m_view->property(property).toDouble();
    }

    QPointer<QQuickItem> m_view;
};
