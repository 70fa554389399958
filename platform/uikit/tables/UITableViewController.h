// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/presentation/UIViewController.h"
#include "platform/uikit/tables/UITableView.h"

/// A screen that is a table, and its data source and delegate. Subclasses override the functions of
/// those that they need; by default the table has one section without rows.
class UITableViewController : public UIViewController,
                              public UITableViewDataSource,
                              public UITableViewDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_CLASSINFO("view", "UIKit/UITableViewControllerView.qml")
    Q_PROPERTY(UITableView *tableView READ tableView CONSTANT FINAL)

public:
    explicit UITableViewController(UITableViewStyle style);
    ~UITableViewController() override;

    /// The screen's table, made with the controller.
    [[nodiscard]] UITableView *tableView() { return &m_tableView; }
    [[nodiscard]] UIView *view() override { return &m_tableView; }

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;

private:
    UITableView m_tableView;
};
