// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UITableViewController.h"

/// Home, the first tab.
class WZTRootViewController : public UITableViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    WZTRootViewController();

    void viewDidLoad() override;
};
