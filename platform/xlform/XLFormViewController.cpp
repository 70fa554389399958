// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/xlform/XLFormViewController.h"

#include "platform/uikit/bars/UINavigationItem.h"

#include <algorithm>

XLFormViewController::XLFormViewController(std::shared_ptr<XLFormDescriptor> form)
    : UITableViewController(UITableViewStyle::Grouped), m_form(std::move(form))
{
    navigationItem()->setTitle(m_form->title());
}

XLFormViewController::~XLFormViewController() = default;

const XLFormSectionDescriptor &XLFormViewController::section(int index) const
{
    return *m_form->formSections().at(static_cast<std::size_t>(index));
}

XLFormRowDescriptor &XLFormViewController::row(const NSIndexPath &indexPath) const
{
    return *section(indexPath.section).formRows().at(static_cast<std::size_t>(indexPath.row));
}

XLFormViewController::Rows XLFormViewController::rows() const
{
    Rows all;
    for (const auto &section : m_form->formSections()) {
        all.insert(all.end(), section->formRows().begin(), section->formRows().end());
    }
    return all;
}

QStringList XLFormViewController::formValidationErrors() const
{
    QStringList errors;
    for (const auto &row : rows()) {
        if (row->isRequired() && !row->value()) {
            errors.append(row->tag());
        }
    }
    return errors;
}

XLFormViewController::Values XLFormViewController::formValues() const
{
    Values values;
    for (const auto &row : rows()) {
        values[row->tag()] = row->value();
    }
    return values;
}

bool XLFormViewController::isModalInPresentation() const
{
    return std::ranges::any_of(rows(), [](const auto &row) { return row->value().has_value(); });
}

std::shared_ptr<XLFormCell> XLFormViewController::cellOf(XLFormRowDescriptor &row)
{
    auto &cell = m_cells[&row];
    if (!cell) {
        cell = XLFormCell::cellForRow(row);
        tableView()->addSubview(*cell);
        connect(cell.get(), &XLFormCell::returned, this, [this, &row] { moveOn(row); });
    }
    return cell;
}

void XLFormViewController::moveOn(const XLFormRowDescriptor &row)
{
    const Rows all = rows();
    auto next = std::ranges::find(all, &row, &std::shared_ptr<XLFormRowDescriptor>::get);
    if (++next == all.end()) {
        tableView()->endEditing(true);
    } else {
        cellOf(**next)->editor()->becomeFirstResponder();
    }
}

void XLFormViewController::viewWillAppear(bool animated)
{
    UITableViewController::viewWillAppear(animated);
    // Later on the keyboard is where the user left it.
    const Rows all = rows();
    if (!std::exchange(m_shown, true) && m_form->assignFirstResponderOnShow() && !all.empty()) {
        cellOf(*all.front())->editor()->becomeFirstResponder();
    }
}

int XLFormViewController::numberOfSections() const
{
    return static_cast<int>(m_form->formSections().size());
}

int XLFormViewController::numberOfRowsInSection(int section) const
{
    return static_cast<int>(this->section(section).formRows().size());
}

std::optional<QString> XLFormViewController::titleForFooterInSection(int section) const
{
    return this->section(section).footerTitle();
}

std::shared_ptr<UITableViewCell>
XLFormViewController::cellForRowAtIndexPath(const NSIndexPath &indexPath)
{
    return cellOf(row(indexPath));
}

void XLFormViewController::didSelectRowAtIndexPath(const NSIndexPath &indexPath)
{
    tableView()->deselectRowAtIndexPath(indexPath, false);
    cellOf(row(indexPath))->editor()->becomeFirstResponder();
}
