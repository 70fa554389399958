// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewController.h"
#include "platform/xlform/XLFormCell.h"
#include "platform/xlform/XLFormDescriptor.h"

#include <QStringList>

/// A screen that is a form: a section of its table for each of the form's, a cell for each row, the
/// form's title in the navigation bar. Return in a row of one line moves on to the next row.
class XLFormViewController : public UITableViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_CLASSINFO("view", "XLForm/XLFormViewControllerView.qml")

public:
    /// The value of each row by its tag; nil for a row left empty.
    using Values = std::map<QString, std::optional<QString>>;

    explicit XLFormViewController(std::shared_ptr<XLFormDescriptor> form);
    ~XLFormViewController() override;

    [[nodiscard]] XLFormDescriptor *form() const { return m_form.get(); }
    /// The tags of the required rows without a value, in the order of the rows.
    [[nodiscard]] QStringList formValidationErrors() const;
    /// See Values.
    [[nodiscard]] Values formValues() const;
    /// The one cell of that row, made when it is first asked for.
    [[nodiscard]] std::shared_ptr<XLFormCell> cellOf(XLFormRowDescriptor &row);

    /// True while any row has a value.
    [[nodiscard]] bool isModalInPresentation() const override;
    void viewWillAppear(bool animated) override;

    [[nodiscard]] int numberOfSections() const override;
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] std::optional<QString> titleForFooterInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;
    void didSelectRowAtIndexPath(const NSIndexPath &indexPath) override;

private:
    using Rows = XLFormSectionDescriptor::Rows;

    [[nodiscard]] const XLFormSectionDescriptor &section(int index) const;
    [[nodiscard]] XLFormRowDescriptor &row(const NSIndexPath &indexPath) const;
    [[nodiscard]] Rows rows() const;
    void moveOn(const XLFormRowDescriptor &row);

    std::shared_ptr<XLFormDescriptor> m_form;
    std::map<const XLFormRowDescriptor *, std::shared_ptr<XLFormCell>> m_cells;
    bool m_shown = false;
};
