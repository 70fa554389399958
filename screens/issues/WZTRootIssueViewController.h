// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackage.h"
#include "platform/uikit/tables/UITableViewController.h"

/// The list of the projects. Each row opens the issues of its project.
class WZTRootIssueViewController : public UITableViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")

public:
    WZTRootIssueViewController();

    /// The catalogue at the time when the screen was made.
    [[nodiscard]] const std::vector<std::shared_ptr<WZTPackage>> &packages() const
    {
        return m_packages;
    }

    void viewDidLoad() override;

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;
    /// Deselects the row and presents its project's issues.
    void didSelectRowAtIndexPath(const NSIndexPath &indexPath) override;

private:
    std::vector<std::shared_ptr<WZTPackage>> m_packages = WZTPackage::allPackages();
};
