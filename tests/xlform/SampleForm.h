// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UINavigationItem.h"
#include "platform/xlform/XLFormTextFieldCell.h"
#include "platform/xlform/XLFormTextViewCell.h"
#include "platform/xlform/XLFormViewController.h"

/// A form of three sections: a required line with a text below, nothing, and notes; a Cancel button
/// and "Done" above it.
class SampleForm : public XLFormViewController {
    Q_OBJECT

public:
    SampleForm() : SampleForm(row("name", "Name"), row("notes", "Notes")) { }

    const std::shared_ptr<XLFormRowDescriptor> name;
    const std::shared_ptr<XLFormRowDescriptor> notes;
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
    using Row = std::shared_ptr<XLFormRowDescriptor>;

    SampleForm(const Row &first, const Row &last)
        : XLFormViewController(describe(first, last)), name(first), notes(last)
    {
        navigationItem()->setLeftBarButtonItem(
            make<UIBarButtonItem>(UIBarButtonSystemItem::Cancel, this, &SampleForm::cancel));
        navigationItem()->setRightBarButtonItem(make<UIBarButtonItem>(
            QStringLiteral("Done"), UIBarButtonItemStyle::Plain, this, &SampleForm::done));
    }

    static Row row(const char *tag, const char *title)
    {
        using enum XLFormRowDescriptorType;
        return XLFormRowDescriptor::formRowDescriptorWithTag(
            QString::fromLatin1(tag), tag[1] == 'a' ? Text : TextView, QString::fromLatin1(title));
    }
    static std::shared_ptr<XLFormDescriptor> describe(const Row &first, const Row &last)
    {
        auto form = XLFormDescriptor::formDescriptorWithTitle(QStringLiteral("Form"));
        form->setAssignFirstResponderOnShow(true);
        for (const Row &row : {first, Row(), last}) {
            form->addFormSection(XLFormSectionDescriptor::formSection());
            if (row)
                form->formSections().back()->addFormRow(row);
        }
        form->formSections().front()->setFooterTitle(QStringLiteral("Below the name"));
        first->setRequired(true);
        last->cellConfigAtConfigure()[QStringLiteral("textView.placeholder")] =
            QStringLiteral("More about it?");
        return form;
    }
    void cancel() { ++cancelled; }
    void done() { tableView()->endEditing(true); }
};
