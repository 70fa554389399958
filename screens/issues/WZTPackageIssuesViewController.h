// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackageIssue.h"
#include "screens/common/WZTBusyTableViewController.h"

#include <QList>

class UIBarButtonItem;
class WZTPackage;

/// A project's issues, fetched whenever the screen comes into sight: what was listed before stays
/// until the reply replaces it, whatever the reply is. Failures are not told.
class WZTPackageIssuesViewController : public WZTBusyTableViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")

public:
    using Issues = std::optional<QList<WZTPackageIssue>>;

    explicit WZTPackageIssuesViewController(std::shared_ptr<WZTPackage> package);
    ~WZTPackageIssuesViewController() override;

    [[nodiscard]] const std::shared_ptr<WZTPackage> &package() const { return m_package; }
    /// Those of the last reply, in its order; nil before the first and when it had none.
    [[nodiscard]] const Issues &packageIssues() const { return m_packageIssues; }

    void viewDidAppear(bool animated) override;

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;

    /// Presents the form for a new issue.
    void addNewIssue(UIBarButtonItem *sender);
    /// Takes the screen away.
    void cancel(UIBarButtonItem *sender);

private:
    void setPackageIssues(const Issues &issues);

    std::shared_ptr<WZTPackage> m_package;
    Issues m_packageIssues;
};
