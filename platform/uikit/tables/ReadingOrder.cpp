// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/ReadingOrder.h"

#include <algorithm>

namespace {

// Items that are no delegates stand first.
int indexOf(const QQuickItem *item)
{
    const QVariant index = item->property("index");
    return index.isValid() ? index.toInt() : -1;
}

} // namespace

void ReadingOrder::setIndex(int index)
{
    m_index = index;
    polish();
}

void ReadingOrder::updatePolish()
{
    const QQuickItem *delegate = parentItem();
    if (!delegate || !delegate->parentItem()) {
        return;
    }
    QList<QQuickItem *> all = delegate->parentItem()->childItems();
    if (std::ranges::is_sorted(all, {}, indexOf)) {
        return;
    }
    std::ranges::stable_sort(all, {}, indexOf);
    for (qsizetype i = 1; i < all.size(); ++i) {
        all[i]->stackAfter(all[i - 1]);
    }
}
