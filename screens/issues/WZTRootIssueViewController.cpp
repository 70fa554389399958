// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/issues/WZTRootIssueViewController.h"

#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/presentation/UINavigationController.h"
#include "screens/issues/WZTPackageIssuesViewController.h"
#include "views/AdaptiveColors.h"

using namespace Qt::StringLiterals;

WZTRootIssueViewController::WZTRootIssueViewController()
    : UITableViewController(UITableViewStyle::Grouped)
{
    navigationItem()->setTitle(u"Projects"_s);
    tableView()->registerClass<UITableViewCell>(u"reuseIdentifier"_s);
}

void WZTRootIssueViewController::viewDidLoad()
{
    UITableViewController::viewDidLoad();
    view()->setBackgroundColor(AdaptiveColors::screenBackground());
}

int WZTRootIssueViewController::numberOfRowsInSection(int /*section*/) const
{
    return static_cast<int>(m_packages.size());
}

std::shared_ptr<UITableViewCell>
WZTRootIssueViewController::cellForRowAtIndexPath(const NSIndexPath &indexPath)
{
    auto cell = tableView()->dequeueReusableCellWithIdentifier(u"reuseIdentifier"_s);
    cell->textLabel()->setText(m_packages.at(static_cast<std::size_t>(indexPath.row))->name);
    return cell;
}

void WZTRootIssueViewController::didSelectRowAtIndexPath(const NSIndexPath &indexPath)
{
    tableView()->deselectRowAtIndexPath(indexPath, true);
    const auto &package = m_packages.at(static_cast<std::size_t>(indexPath.row));
    auto issues = make<WZTPackageIssuesViewController>(package);
    presentViewController(make<UINavigationController>(std::move(issues)), true);
}
