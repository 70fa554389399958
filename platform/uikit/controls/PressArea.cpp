// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/PressArea.h"

PressArea::PressArea(QQuickItem *parent) : ControlArea(parent)
{
    setReceiver(&m_control);
    connect(&m_control, &UIControl::changed, this, &PressArea::highlightedChanged);
    m_control.addTarget(this, &PressArea::triggered, UIControlEvent::TouchUpInside);
}
