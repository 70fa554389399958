// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QQuickItem;

/// Whether to show that an item has the keyboard: only while the keyboard is in use, until
/// something is pressed anywhere in the window.
class KeyFocus : public QObject {
    Q_OBJECT

public:
    /// `item` outlives this.
    explicit KeyFocus(QQuickItem &item) : m_item(item) {}

    [[nodiscard]] bool isVisible() const;
    /// The item got the keyboard by key, or a key of it was pressed.
    void begin();
    /// The item got or lost the keyboard.
    void follow(Qt::FocusReason reason);

    bool eventFilter(QObject *window, QEvent *event) override;

Q_SIGNALS:
    /// `isVisible` may have changed.
    void changed();

private:
    QQuickItem &m_item;
    bool m_byKey = false;
};
