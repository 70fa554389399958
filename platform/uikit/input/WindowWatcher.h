// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

/// An item that sees what its window is told, before the window does, in `eventFilter`: no grab
/// and no focus hides an event there.
class WindowWatcher : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

protected:
    /// Null for none. Until `itemChange` is through it is the window that the item leaves.
    [[nodiscard]] QQuickWindow *watched() const { return m_watched; }
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QPointer<QQuickWindow> m_watched;
};
