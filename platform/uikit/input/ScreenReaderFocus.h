// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>

/// What screen readers are told to have the keyboard in place of the item that has it.
class ScreenReaderFocus {
public:
    /// Tells of `item`, once more if it is the same; null for nothing any more.
    void set(QQuickItem *item);

    /// Tells of an item that has the keyboard itself.
    static void tell(QQuickItem &item);

private:
    QPointer<QQuickItem> m_item;
};
