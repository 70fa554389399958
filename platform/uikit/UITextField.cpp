// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UITextField.h"

void UITextField::setAttributedPlaceholder(const QString &placeholder, const UIColor &color)
{
    setPlaceholder(placeholder);
    assign(m_placeholderColor, color);
}

UIColor UITextField::fillColor() const
{
    return m_borderStyle == BorderStyle::RoundedRect
        ? UIColor::secondarySystemGroupedBackgroundColor()
        : backgroundColor();
}

QString UITextField::accessibilityLabel() const
{
    const QString label = UIControl::accessibilityLabel();
    return label.isEmpty() ? m_placeholder : label;
}

void UITextField::edit(const QString &text)
{
    QString line = text;
    for (const QChar lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'})
        line.replace(lineBreak, u' ');
    if (line == shownText()) {
        // What is drawn may differ from what is kept.
        if (line != text)
            Q_EMIT changed();
        return;
    }
    setText(line);
    sendActionsForControlEvent(UIControlEvent::EditingChanged);
}

void UITextField::returnPressed()
{
    sendActionsForControlEvent(UIControlEvent::EditingDidEndOnExit);
}

void UITextField::firstResponderDidChange()
{
    sendActionsForControlEvent(isFirstResponder() ? UIControlEvent::EditingDidBegin
                                                  : UIControlEvent::EditingDidEnd);
}
