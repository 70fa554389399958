// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/WZTUserViewController.h"

#include "platform/uikit/UINavigationItem.h"
#include "views/AdaptiveColors.h"

using namespace Qt::StringLiterals;

WZTUserViewController::WZTUserViewController() : UITableViewController(UITableViewStyle::Grouped)
{
    navigationItem()->setTitle(u"Account"_s);
}

void WZTUserViewController::viewDidLoad()
{
    UITableViewController::viewDidLoad();
    view()->setBackgroundColor(AdaptiveColors::screenBackground());
}
