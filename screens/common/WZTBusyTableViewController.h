// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIActivityIndicatorView.h"
#include "platform/uikit/tables/UITableViewController.h"

/// A grouped table on the screens' background. A spinner in the middle is hidden while stopped.
class WZTBusyTableViewController : public UITableViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_CLASSINFO("view", "Screens/WZTBusyTableView.qml")
    Q_PROPERTY(UIActivityIndicatorView *activityIndicator READ activityIndicator CONSTANT FINAL)

public:
    WZTBusyTableViewController();
    ~WZTBusyTableViewController() override;

    void viewDidLoad() override;

    [[nodiscard]] UIActivityIndicatorView *activityIndicator() { return &m_activityIndicator; }

private:
    UIActivityIndicatorView m_activityIndicator{UIActivityIndicatorView::Style::Gray};
};
