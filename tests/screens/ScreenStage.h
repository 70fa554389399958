// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestApp.h"
#include "tests/support/TestWindow.h"

#include <QAccessible>

#include <optional>
#include <vector>

/// A screen or an alert, and what keys do there.
struct Screen {
    const char *name;
    bool signedIn;
    /// What is pressed on the way.
    QStringList path;
    /// Where Tab comes to, from the first on.
    QString walk;
    /// What is there after Escape.
    QString escaped;
    /// What is there after Alt+Left.
    QString back;
};

/// Every screen, and an alert.
[[nodiscard]] const std::vector<Screen> &allScreens();

/// The application at one of its screens.
struct ScreenStage {
    struct Options {
        QSize size = {320, 568};
        double textScale = 1;
        WZTUser user = {42, QStringLiteral("jo@wzt.example"), QStringLiteral("Jo")};
    };

    explicit ScreenStage(const Screen &screen) : ScreenStage(screen, Options()) {}
    ScreenStage(const Screen &screen, const Options &options);

    [[nodiscard]] QAccessibleInterface *accessible(const QString &name);

    TestApp app;
    std::optional<TestWindow> window;
};
