// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/text/UITextField.h"

#include <cstring>
#include <utility>

namespace {

QString inOneLine(QString text)
{
    for (const QChar lineBreak : {u'\n', u'\r', u'\u2028', u'\u2029'}) {
        text.replace(lineBreak, u' ');
    }
    return text;
}

/// A copy that shares no memory with `text`.
std::optional<QString> copyOf(const std::optional<QString> &text)
{
    return text ? std::optional(QString(text->constData(), text->size())) : std::nullopt;
}

void overwrite(std::optional<QString> &text)
{
    // Text that is shared belongs to its other holders as well.
    if (text && text->isDetached()) {
        explicit_bzero(text->data(), static_cast<size_t>(text->size()) * sizeof(QChar));
    }
}

} // namespace

void UITextField::setText(const std::optional<QString> &text)
{
    if (!isSecureTextEntry() || text == m_text) {
        assign(m_text, text);
        return;
    }
    std::optional<QString> before = copyOf(text);
    std::swap(m_text, before);
    overwrite(before);
    Q_EMIT changed();
}

void UITextField::erase()
{
    std::optional<QString> before = QString();
    std::swap(m_text, before);
    overwrite(before);
    Q_EMIT changed();
}

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
    if (shows(text)) {
        return;
    }
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
