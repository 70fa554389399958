// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/UITableViewController.h"

UITableViewController::UITableViewController(UITableViewStyle style) : m_tableView(style)
{
    m_tableView.setDataSource(this);
    m_tableView.setDelegate(this);
}

UITableViewController::~UITableViewController() = default;

int UITableViewController::numberOfRowsInSection(int /*section*/) const
{
    return 0;
}

std::shared_ptr<UITableViewCell>
UITableViewController::cellForRowAtIndexPath(const NSIndexPath & /*indexPath*/)
{
    return make<UITableViewCell>();
}
