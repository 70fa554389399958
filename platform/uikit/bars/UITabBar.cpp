// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/bars/UITabBar.h"

#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/base/ListProperty.h"

#include <utility>

void UITabBar::setItems(const std::vector<UITabBarItem *> &items)
{
    m_items = items;
    Q_EMIT itemsChanged();
}

void UITabBar::choose(int index)
{
    if (index >= 0 && std::cmp_less(index, m_items.size())) {
        Q_EMIT itemChosen(index);
    }
}

QQmlListProperty<UITabBarItem> UITabBar::itemList()
{
    return listProperty<UITabBarItem, &UITabBar::m_items>(this);
}
