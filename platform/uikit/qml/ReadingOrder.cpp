// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/qml/ReadingOrder.h"

#include <algorithm>

namespace {

// What is no delegate stands first.
int indexOf(const QQuickItem *item)
{
    const QVariant index = item->property("index");
    return index.isValid() ? index.toInt() : -1;
}

} // namespace

void ReadingOrder::componentComplete()
{
    QQuickItem::componentComplete();
    QQuickItem *delegate = parentItem();
    if (!delegate || !delegate->parentItem())
        return;
    const QList<QQuickItem *> all = delegate->parentItem()->childItems();
    const auto after = std::ranges::upper_bound(all, indexOf(delegate), {}, indexOf);
    if (after != all.end())
        delegate->stackBefore(*after);
}
