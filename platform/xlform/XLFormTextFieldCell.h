// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/text/UITextField.h"
#include "platform/xlform/XLFormCell.h"

/// A row of one line: the title, and the text beside it. Return is the end of the row.
class XLFormTextFieldCell : public XLFormCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a form")
    Q_CLASSINFO("view", "XLForm/XLFormTextFieldCellView.qml")
    Q_PROPERTY(UITextField *textField READ textField CONSTANT FINAL)

public:
    explicit XLFormTextFieldCell(XLFormRowDescriptor &row) : XLFormCell(row)
    {
        m_textField.addTarget(this, &XLFormTextFieldCell::edited, UIControlEvent::EditingChanged);
        m_textField.addTarget(this, &XLFormCell::returned, UIControlEvent::EditingDidEndOnExit);
    }

    [[nodiscard]] UITextField *textField() { return &m_textField; }
    [[nodiscard]] UIView *editor() override { return &m_textField; }

protected:
    [[nodiscard]] QString shownText() const override
    {
        return m_textField.text().value_or(QString());
    }
    void showText(const QString &text) override { m_textField.setText(text); }

private:
    UITextField m_textField;
};
