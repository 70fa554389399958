// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/UIView.h"

/// Text of several lines to edit; as high as the text, or the placeholder while there is none.
class UITextView : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY changed FINAL)
    Q_PROPERTY(Qt::InputMethodHints inputMethodHints READ inputMethodHints CONSTANT FINAL)

public:
    /// Lines are ended by "\n".
    [[nodiscard]] QString text() const { return m_text; }
    /// Sets the text without `textDidChange`.
    void setText(const QString &text) { assign(m_text, text); }

    [[nodiscard]] QString placeholder() const { return m_placeholder; }
    void setPlaceholder(const QString &placeholder) { assign(m_placeholder, placeholder); }

    [[nodiscard]] static Qt::InputMethodHints inputMethodHints() { return Qt::ImhMultiLine; }

    [[nodiscard]] bool canBecomeFirstResponder() const override { return true; }
    /// The label set, or else the placeholder; never the text.
    [[nodiscard]] QString accessibilityLabel() const override;

    /// Acts as an edit by the user, for the drawing of the view: the text is now this one.
    Q_INVOKABLE void edit(const QString &text);

Q_SIGNALS:
    /// The user edited the text.
    void textDidChange();

private:
    QString m_text;
    QString m_placeholder;
};
