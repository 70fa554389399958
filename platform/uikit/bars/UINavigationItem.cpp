// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/bars/UINavigationItem.h"

void UINavigationItem::setTitle(const QString &title)
{
    if (m_title == title) {
        return;
    }
    m_title = title;
    Q_EMIT changed();
}

void UINavigationItem::setLeftBarButtonItem(std::shared_ptr<UIBarButtonItem> item)
{
    m_left = std::move(item);
    Q_EMIT changed();
}

void UINavigationItem::setRightBarButtonItem(std::shared_ptr<UIBarButtonItem> item)
{
    m_right = std::move(item);
    Q_EMIT changed();
}
