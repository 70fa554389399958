// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackage.h"
#include "platform/foundation/base/NSUInteger.h"
#include "platform/uikit/alerts/UIAlertAction.h"
#include "platform/xlform/XLFormViewController.h"

class UIBarButtonItem;

/// The form on which an issue is filed against a project: a title, notes, Submit and Cancel. Each
/// tap on Submit is a submission of its own, and each outcome an alert of its own; nothing waits
/// for the reply meanwhile. The form closes after an accepted submission and by Cancel.
class WZTIssueReporterViewController : public XLFormViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    explicit WZTIssueReporterViewController(std::shared_ptr<WZTPackage> package);

    /// The project that the issue is filed against.
    [[nodiscard]] std::shared_ptr<WZTPackage> package() const { return m_package; }
    void setPackage(std::shared_ptr<WZTPackage> package) { m_package = std::move(package); }

    void viewDidLoad() override;

    /// Closes the form; what was typed goes with it.
    void cancel(UIBarButtonItem *sender);
    /// Files what is typed, or says that there is no title.
    void submitPressed(UIBarButtonItem *sender);

    /// What becomes of a submission: 0 for accepted, anything else for not.
    void submissionEnded(NSUInteger code);

private:
    void present(const QString &title, const QString &message, UIAlertAction::Handler dismissed);
    void close();

    std::shared_ptr<WZTPackage> m_package;
};
