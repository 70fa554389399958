// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/WindowWatcher.h"

void WindowWatcher::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange) {
        if (m_watched) {
            m_watched->removeEventFilter(this);
        }
        m_watched = data.window;
        if (m_watched) {
            m_watched->installEventFilter(this);
        }
    }
    QQuickItem::itemChange(change, data);
}
