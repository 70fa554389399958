// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>

/// The focus of screen readers, where it is not at the item that has the keyboard.
class ScreenReaderFocus {
public:
    /// Announces the focus of `item`, again if it is the same; null for none any more.
    void set(QQuickItem *item);

    /// Announces the focus of an item that has the keyboard itself.
    static void tell(QQuickItem &item);

private:
    QPointer<QQuickItem> m_item;
};
