// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackageIssue.h"
#include "platform/foundation/base/NSUInteger.h"
#include "screens/common/WZTBusyTableViewController.h"

#include <QList>

class UIBarButtonItem;
class WZTPackage;

/// A project's issues, fetched at each appearance of the screen. Every reply replaces the list; a
/// failure empties it, without a message.
class WZTPackageIssuesViewController : public WZTBusyTableViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")

public:
    using Issues = std::optional<QList<WZTPackageIssue>>;

    explicit WZTPackageIssuesViewController(std::shared_ptr<WZTPackage> package);
    ~WZTPackageIssuesViewController() override;

    [[nodiscard]] const std::shared_ptr<WZTPackage> &package() const { return m_package; }
    /// The issues of the last reply, in its order. Nil before the first reply and after one without
    /// issues.
    [[nodiscard]] const Issues &packageIssues() const { return m_packageIssues; }

    void viewDidAppear(bool animated) override;

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] std::shared_ptr<UITableViewCell>
    cellForRowAtIndexPath(const NSIndexPath &indexPath) override;

    /// Presents the form for a new issue.
    void addNewIssue(UIBarButtonItem *sender);
    /// Dismisses the screen.
    void cancel(UIBarButtonItem *sender);

private:
    void fetchCompleted(NSUInteger code, const Issues &issues);

    std::shared_ptr<WZTPackage> m_package;
    Issues m_packageIssues;
};
