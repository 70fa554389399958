// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/input/WindowWatcher.h"

void WindowWatcher::setWatching(bool watching)
{
    m_watching = watching;
    watch(window());
}

void WindowWatcher::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange) {
        watch(data.window);
    }
    QQuickItem::itemChange(change, data);
}

void WindowWatcher::watch(QQuickWindow *window)
{
    QQuickWindow *next = m_watching ? window : nullptr;
    if (next == m_watched) {
        return;
    }
    if (m_watched) {
        m_watched->removeEventFilter(this);
    }
    m_watched = next;
    if (m_watched) {
        m_watched->installEventFilter(this);
    }
}
