// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackage.h"
#include "platform/foundation/base/NSUInteger.h"
#include "platform/xlform/XLFormViewController.h"

class UIBarButtonItem;

/// The form for a new issue of a project: a title, notes, Submit and Cancel. Each tap on Submit
/// starts a separate submission, and each outcome is an alert; the form stays usable meanwhile.
/// Cancel closes the form, and so does the alert of an accepted submission.
class WZTIssueReporterViewController : public XLFormViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    explicit WZTIssueReporterViewController(std::shared_ptr<WZTPackage> package);

    /// The project of the issue.
    [[nodiscard]] std::shared_ptr<WZTPackage> package() const { return m_package; }
    void setPackage(std::shared_ptr<WZTPackage> package) { m_package = std::move(package); }

    void viewDidLoad() override;

    /// Closes the form and discards its texts.
    void cancel(UIBarButtonItem *sender);
    /// Submits the issue, or shows a message if the title is empty.
    void submitPressed(UIBarButtonItem *sender);

    /// Reports a submission's outcome; 0 is success.
    void submissionCompleted(NSUInteger code);

private:
    void close();

    std::shared_ptr<WZTPackage> m_package;
};
