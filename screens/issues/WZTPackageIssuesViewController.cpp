// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/issues/WZTPackageIssuesViewController.h"

#include "model/WZTPackage.h"
#include "platform/foundation/base/NSLog.h"
#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "screens/common/MainThread.h"
#include "screens/issues/WZTIssueReporterViewController.h"
#include "service/WZTAPI.h"

using namespace Qt::StringLiterals;

WZTPackageIssuesViewController::WZTPackageIssuesViewController(std::shared_ptr<WZTPackage> package)
    : m_package(std::move(package))
{
    using Page = WZTPackageIssuesViewController;
    navigationItem()->setRightBarButtonItem(
        make<UIBarButtonItem>(UIBarButtonSystemItem::Add, this, &Page::addNewIssue));
    navigationItem()->setLeftBarButtonItem(
        make<UIBarButtonItem>(UIBarButtonSystemItem::Cancel, this, &Page::cancel));
    navigationItem()->setTitle(u"%1 Issues"_s.arg(m_package->name));
    tableView()->registerClass<UITableViewCell>(u"reuseIdentifier"_s);
}

WZTPackageIssuesViewController::~WZTPackageIssuesViewController() = default;

void WZTPackageIssuesViewController::viewDidAppear(bool animated)
{
    WZTBusyTableViewController::viewDidAppear(animated);
    activityIndicator()->startAnimating();
    WZTAPI::issuesForPackageIdentifier(
        m_package->bundleIdentifier,
        onMainThread(this, &WZTPackageIssuesViewController::fetchCompleted));
}

void WZTPackageIssuesViewController::fetchCompleted(NSUInteger /*code*/, const Issues &issues)
{
    activityIndicator()->stopAnimating();
    m_packageIssues = issues;
    tableView()->reloadData();
}

int WZTPackageIssuesViewController::numberOfRowsInSection(int /*section*/) const
{
    return m_packageIssues ? static_cast<int>(m_packageIssues->size()) : 0;
}

std::shared_ptr<UITableViewCell>
WZTPackageIssuesViewController::cellForRowAtIndexPath(const NSIndexPath &indexPath)
{
    auto cell = make<UITableViewCell>(UITableViewCellStyle::Subtitle, u"reuseIdentifier"_s);
    const WZTPackageIssue &issue = std::as_const(*m_packageIssues)[indexPath.row];
    cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    cell->textLabel()->setText(issue.title.value_or(QString()));
    cell->textLabel()->setNumberOfLines(0);
    cell->detailTextLabel()->setNumberOfLines(0);
    cell->detailTextLabel()->setText(issue.issueDescription.value_or(QString()));
    return cell;
}

void WZTPackageIssuesViewController::addNewIssue(UIBarButtonItem *)
{
    const auto address = reinterpret_cast<quintptr>(m_package.get());
    NSLog(u"Add new issue to package: <WZTPackage: 0x%1>"_s.arg(address, 0, 16));
    presentViewController(
        make<UINavigationController>(make<WZTIssueReporterViewController>(m_package)), true);
}

void WZTPackageIssuesViewController::cancel(UIBarButtonItem *)
{
    dismissViewControllerAnimated(true);
}
