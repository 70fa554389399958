// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "screens/common/MessageAlert.h"
#include "screens/common/WZTBusyTableViewController.h"

/// Home, the first tab: a fixed menu with the bug reporter, links to other applications and a card
/// of thanks.
class WZTRootViewController : public WZTBusyTableViewController,
                              public MessageAlerts<WZTRootViewController> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    WZTRootViewController();

    void viewDidLoad() override;

    [[nodiscard]] int numberOfSections() const override { return 3; }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] double heightForFooterInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;
    /// Deselects the row and runs its action.
    void didSelectRowAtIndexPath(const NSIndexPath &indexPath) override;

    // The rows' actions. A link without an application for it does nothing.
    /// Hands the public repository to Zebra if that is installed, and to Cydia otherwise.
    void addPublicRepo();
    /// Does the same with the supporter repository.
    void addSubscriberRepo();
    void joinDiscord();
    /// Pushes a new list of projects.
    void showIssueProjectList();
};
