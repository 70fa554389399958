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
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QPointer<QQuickWindow> m_watched;
};
