// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/common/WZTBusyTableViewController.h"

#include "views/AdaptiveColors.h"

WZTBusyTableViewController::WZTBusyTableViewController()
    : UITableViewController(UITableViewStyle::Grouped)
{
}

WZTBusyTableViewController::~WZTBusyTableViewController() = default;

void WZTBusyTableViewController::viewDidLoad()
{
    UITableViewController::viewDidLoad();
    view()->setBackgroundColor(AdaptiveColors::screenBackground());
    m_activityIndicator.setHidesWhenStopped(true);
    view()->addSubview(m_activityIndicator);
}
