// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/ScreenReaderFocus.h"

#include <QAccessible>

namespace {

// Some screen readers ignore a focus event of an item that is not focused by its own state.
void claim(const QQuickItem *item, bool isFocused)
{
    if (!item) {
        return;
    }
    for (QObject *child : item->children()) {
        if (child->inherits("QQuickAccessibleAttached")) {
            child->setProperty("focused", isFocused);
        }
    }
}

} // namespace

void ScreenReaderFocus::set(QQuickItem *item)
{
    if (m_item != item) {
        claim(m_item, false);
    }
    m_item = item;
    claim(item, true);
    if (item) {
        tell(*item);
    }
}

void ScreenReaderFocus::tell(QQuickItem &item)
{
    QAccessibleEvent focus(&item, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}
