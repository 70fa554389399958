// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/controls/UILabel.h"

QString UILabel::accessibilityLabel() const
{
    const QString label = UIView::accessibilityLabel();
    return label.isEmpty() ? m_text : label;
}
