// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/UIRefreshControl.h"

UIRefreshControl::UIRefreshControl() = default;
UIRefreshControl::~UIRefreshControl() = default;

void UIRefreshControl::pull()
{
    if (m_refreshing) {
        return;
    }
    beginRefreshing();
    sendActionsForControlEvent(UIControlEvent::ValueChanged);
}
