// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/WZTRootViewController.h"

#include "platform/uikit/UINavigationItem.h"
#include "views/AdaptiveColors.h"

using namespace Qt::StringLiterals;

WZTRootViewController::WZTRootViewController() : UITableViewController(UITableViewStyle::Grouped)
{
    navigationItem()->setTitle(u"Home"_s);
}

void WZTRootViewController::viewDidLoad()
{
    UITableViewController::viewDidLoad();
    view()->setBackgroundColor(AdaptiveColors::screenBackground());
}
