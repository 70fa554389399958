// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/issues/WZTIssueReporterViewController.h"

#include "platform/foundation/base/Dispatch.h"
#include "platform/uikit/alerts/UIAlertController.h"
#include "platform/uikit/bars/UINavigationItem.h"
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
        present(u"Validation Error"_s, u"Ensure at least a title is entered"_s, {});
        return;
    }
    tableView()->endEditing(true);
    const auto title = formValues().at(u"title"_s);
    const auto notes = formValues().at(u"notes"_s);
    WZTAPI::submitIssueForPackage(
        m_package->bundleIdentifier, title, notes, [self = strong(this)](NSUInteger code) {
            dispatchAsyncMain([self, code] { self->submissionEnded(code); });
        });
}

void WZTIssueReporterViewController::submissionEnded(NSUInteger code)
{
    if (code == submissionAccepted) {
        present(u"Submission Success"_s, u"Thank you for submitted an issue report"_s,
                [self = strong(this)] { self->close(); });
    } else {
        present(u"Submission Error"_s,
                u"There was a problem submitting your issue. If this persists, let WZT know."_s,
                {});
    }
}

void WZTIssueReporterViewController::present(const QString &title, const QString &message,
                                             UIAlertAction::Handler dismissed)
{
    auto alert = make<UIAlertController>(title, message);
    alert->addAction(u"Dismiss"_s, UIAlertAction::Style::Cancel, std::move(dismissed));
    presentViewController(std::move(alert), true);
}

void WZTIssueReporterViewController::close()
{
    // Asked of the presenter, so that another submission's alert goes as well.
    if (UIViewController *presenter = presentingViewController()) {
        presenter->dismissViewControllerAnimated(true);
    }
}
