// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/issues/WZTIssueReporterViewController.h"

#include "platform/uikit/bars/UINavigationItem.h"
#include "screens/common/MainThread.h"
#include "screens/common/MessageAlert.h"
#include "service/WZTAPI.h"

using namespace Qt::StringLiterals;

namespace {

constexpr NSUInteger submissionAccepted = 0;

std::shared_ptr<XLFormDescriptor> newIssueForm()
{
    auto form = XLFormDescriptor::formDescriptorWithTitle(u"New Issue"_s);
    form->setAssignFirstResponderOnShow(true);

    auto section = XLFormSectionDescriptor::formSection();
    section->setFooterTitle(u"Enter a consise descriptive title"_s);
    form->addFormSection(section);
    auto row = XLFormRowDescriptor::formRowDescriptorWithTag(
        u"title"_s, XLFormRowDescriptorType::Text, u"Title"_s);
    row->setRequired(true);
    section->addFormRow(std::move(row));

    form->addFormSection(XLFormSectionDescriptor::formSection());

    section = XLFormSectionDescriptor::formSection();
    form->addFormSection(section);
    row = XLFormRowDescriptor::formRowDescriptorWithTag(
        u"notes"_s, XLFormRowDescriptorType::TextView, u"Notes"_s);
    row->cellConfigAtConfigure()[u"textView.placeholder"_s] =
        u"Have more details about reproducing this issue?"_s;
    section->addFormRow(std::move(row));
    return form;
}

} // namespace

WZTIssueReporterViewController::WZTIssueReporterViewController(std::shared_ptr<WZTPackage> package)
    : XLFormViewController(newIssueForm()), m_package(std::move(package))
{
    navigationItem()->setLeftBarButtonItem(make<UIBarButtonItem>(
        UIBarButtonSystemItem::Cancel, this, &WZTIssueReporterViewController::cancel));
}

void WZTIssueReporterViewController::viewDidLoad()
{
    XLFormViewController::viewDidLoad();
    navigationItem()->setRightBarButtonItem(
        make<UIBarButtonItem>(u"Submit"_s, UIBarButtonItemStyle::Plain, this,
                              &WZTIssueReporterViewController::submitPressed));
}

void WZTIssueReporterViewController::cancel(UIBarButtonItem *)
{
    dismissViewControllerAnimated(true);
}

void WZTIssueReporterViewController::submitPressed(UIBarButtonItem *)
{
    if (!formValidationErrors().isEmpty()) {
        presentAlert(*this, u"Validation Error"_s, u"Ensure at least a title is entered"_s);
        return;
    }
    tableView()->endEditing(true);
    const auto title = formValues().at(u"title"_s);
    const auto notes = formValues().at(u"notes"_s);
    WZTAPI::submitIssueForPackage(
        m_package->bundleIdentifier, title, notes,
        onMainThread(this, &WZTIssueReporterViewController::submissionCompleted));
}

void WZTIssueReporterViewController::submissionCompleted(NSUInteger code)
{
    if (code == submissionAccepted) {
        presentAlert(*this, u"Submission Success"_s, u"Thank you for submitted an issue report"_s,
                     [self = strong(this)] { self->close(); });
    } else {
        presentAlert(
            *this, u"Submission Error"_s,
            u"There was a problem submitting your issue. If this persists, let WZT know."_s);
    }
}

void WZTIssueReporterViewController::close()
{
    // The presenter also dismisses the alert of another submission.
    if (UIViewController *presenter = presentingViewController()) {
        presenter->dismissViewControllerAnimated(true);
    }
}
