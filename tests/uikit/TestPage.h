// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/presentation/UIViewController.h"

/// A page with a title that counts its appearances and its completions.
class TestPage : public UIViewController {
    Q_OBJECT
    Q_CLASSINFO("view", "Test/TestPage.qml")

public:
    explicit TestPage(const QString &title = {}) { navigationItem()->setTitle(title); }

    int appeared = 0;
    /// How many of the completions made by `counted` have run.
    int completed = 0;

    [[nodiscard]] Completion counted()
    {
        return [this] { ++completed; };
    }
    void viewDidAppear(bool animated) override
    {
        UIViewController::viewDidAppear(animated);
        ++appeared;
    }
};
