// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/UIPressArea.h"

UIPressArea::UIPressArea(QQuickItem *parent) : UIControlArea(parent)
{
    setReceiver(&m_control);
    connect(&m_control, &UIControl::changed, this, &UIPressArea::highlightedChanged);
    m_control.addTarget(this, &UIPressArea::triggered, UIControlEvent::TouchUpInside);
}
