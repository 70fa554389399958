// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestApp.h"
#include "harness/TestRunner.h"
#include "harness/TestWindow.h"

#include <QAccessible>

#include <vector>

/// A screen or an alert, and its keyboard behaviour.
struct Screen {
    const char *name;
    bool signedIn;
    const char *path; // the items pressed on the way: "one|two"
    const char *walk; // the stops of Tab
    const char *escaped; // an item after Escape
    const char *back; // an item after Alt+Left
};

/// Every screen, and an alert.
[[nodiscard]] const std::vector<Screen> &allScreens();

/// The rectangle of an item, or of the text in it, in the window.
[[nodiscard]] QRectF painted(const QQuickItem *item);

/// Within half a point, where a centred text may start.
[[nodiscard]] inline bool isNear(double some, double other)
{
    return qAbs(some - other) <= 0.51;
}

struct ScreenOptions {
    QSize size = {320, 568};
    DesktopAppearance appearance = {.reduceMotion = true};
    /// Who is signed in, with the password "secret".
    WZTUser user = {1, QStringLiteral("jo@wzt.example"), QStringLiteral("Jo")};
};

/// The application in its window, at one of its screens.
class ScreenStage : public TestApp, public TestWindow {
public:
    using Options = ScreenOptions;

    explicit ScreenStage(const Screen &screen, const Options &options = {});
    /// At the screen of that name.
    explicit ScreenStage(const char *screen, const Options &options = {});
    ~ScreenStage();
    Q_DISABLE_COPY_MOVE(ScreenStage)
};
