// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

/// An item that sees the events of its window in `eventFilter`, before the window does: no grab and
/// no focus hides an event there.
class WindowWatcher : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

protected:
    /// Whether the item watches at all; true unless set.
    void setWatching(bool watching);
    /// The window of the item; null for none. Within `itemChange` it is still the previous one.
    [[nodiscard]] QQuickWindow *watched() const { return m_watched; }
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void watch(QQuickWindow *window);

    bool m_watching = true;
    QPointer<QQuickWindow> m_watched;
};
