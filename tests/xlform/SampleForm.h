// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/xlform/XLFormTextFieldCell.h"
#include "platform/xlform/XLFormTextViewCell.h"
#include "platform/xlform/XLFormViewController.h"

/// A form of three sections: a line with a text below, nothing, and notes; a Cancel button and
/// "Done" above it.
class SampleForm : public XLFormViewController {
public:
    using Row = std::shared_ptr<XLFormRowDescriptor>;

    explicit SampleForm(const Row &first = row(XLFormRowDescriptorType::Text, "Name"),
                        const Row &last = row(XLFormRowDescriptorType::TextView, "Notes"))
        : XLFormViewController(describe({first, {}, last})), name(first), notes(last)
    {
        navigationItem()->setLeftBarButtonItem(
            make<UIBarButtonItem>(UIBarButtonSystemItem::Cancel, this, &SampleForm::cancel));
        navigationItem()->setRightBarButtonItem(make<UIBarButtonItem>(
            QStringLiteral("Done"), UIBarButtonItemStyle::Plain, this, &SampleForm::cancel));
    }

    const Row name;
    const Row notes;
    int cancelled = 0;

    UITextField *nameField()
    {
        return std::static_pointer_cast<XLFormTextFieldCell>(cellOf(*name))->textField();
    }
    UITextView *notesView()
    {
        return std::static_pointer_cast<XLFormTextViewCell>(cellOf(*notes))->textView();
    }

private:
    static Row row(XLFormRowDescriptorType type, const char *title)
    {
        const QString text = QString::fromLatin1(title);
        return XLFormRowDescriptor::formRowDescriptorWithTag(text, type, text);
    }
    static std::shared_ptr<XLFormDescriptor> describe(std::initializer_list<Row> rows)
    {
        auto form = XLFormDescriptor::formDescriptorWithTitle(QStringLiteral("Form"));
        form->setAssignFirstResponderOnShow(true);
        for (const Row &row : rows) {
            form->addFormSection(XLFormSectionDescriptor::formSection());
            if (row) {
                form->formSections().back()->addFormRow(row);
            }
        }
        form->formSections().front()->setFooterTitle(QStringLiteral("Below the name"));
        return form;
    }
    void cancel() { ++cancelled; }
};
