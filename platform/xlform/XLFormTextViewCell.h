// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/text/UITextView.h"
#include "platform/xlform/XLFormCell.h"

/// A row of as many lines as are typed, below the title.
class XLFormTextViewCell : public XLFormCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a form")
    Q_CLASSINFO("view", "XLForm/XLFormTextViewCellView.qml")
    Q_PROPERTY(UITextView *textView READ textView CONSTANT FINAL)

public:
    explicit XLFormTextViewCell(XLFormRowDescriptor &row) : XLFormCell(row)
    {
        connect(&m_textView, &UITextView::textDidChange, this, &XLFormTextViewCell::edited);
    }

    [[nodiscard]] UITextView *textView() { return &m_textView; }
    [[nodiscard]] UIView *editor() override { return &m_textView; }

protected:
    [[nodiscard]] QString shownText() const override { return m_textView.text(); }
    void showText(const QString &text) override { m_textView.setText(text); }

private:
    UITextView m_textView;
};
