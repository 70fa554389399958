// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/text/UITextView.h"

QString UITextView::accessibilityLabel() const
{
    const QString label = UIView::accessibilityLabel();
    return label.isEmpty() ? m_placeholder : label;
}

void UITextView::edit(const QString &text)
{
    if (text == m_text) {
        return;
    }
    setText(text);
    Q_EMIT textDidChange();
}
