// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/UIButton.h"

QString UIButton::accessibilityLabel() const
{
    const QString label = UIControl::accessibilityLabel();
    return label.isEmpty() ? m_title : label;
}
