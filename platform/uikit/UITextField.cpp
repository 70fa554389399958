// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UITextField.h"

namespace {

QString inOneLine(QString text)
{
    for (const QChar lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'})
        text.replace(lineBreak, u' ');
    return text;
}

} // namespace

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

bool UITextField::shows(const QString &text) const
{
    return inOneLine(text) == shownText();
}

void UITextField::edit(const QString &text)
{
    if (shows(text))
        return;
    setText(inOneLine(text));
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
