// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "screens/common/MessageAlert.h"
#include "screens/common/WZTBusyTableViewController.h"

/// Home, the first tab: a fixed menu of the bug reporter, of links into other applications, and a
/// word of thanks.
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
    /// Deselects the row and does what it stands for.
    void didSelectRowAtIndexPath(const NSIndexPath &indexPath) override;

    // What the rows do. A link goes to whoever handles it; nothing is told when nobody does.
    /// Hands the public repository to Zebra where that is installed, and to Cydia otherwise.
    void addPublicRepo();
    /// The same with the repository for supporters.
    void addSubscriberRepo();
    void joinDiscord();
    /// Pushes a new list of the projects that issues can be reported against.
    void showIssueProjectList();
};
