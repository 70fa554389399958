// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/bars/UITabBarItem.h"

UITabBarItem::UITabBarItem(const QString &title, const UIImage &image, int tag)
    : m_title(title), m_image(image), m_tag(tag), m_accessibilityLabel(title)
{
}
