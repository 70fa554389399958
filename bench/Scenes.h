// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestApp.h"
#include "platform/uikit/presentation/DesktopWindow.h"

#include <functional>
#include <memory>
#include <vector>

/// Home of a signed-in user, or Login, in a window, over a service with issues to show.
class Stage {
public:
    explicit Stage(bool isSignedIn = true);

    [[nodiscard]] AppDelegate &delegate() { return m_app.delegate(); }
    [[nodiscard]] QQuickView &view() { return m_host->view(); }

    /// Lets the application run for so long.
    static void wait(std::chrono::milliseconds time);
    /// A finger moves up or down the middle of the window, and is lifted while it moves.
    void drag(int fromY, int toY, std::chrono::milliseconds time);

private:
    TestApp m_app;
    std::unique_ptr<DesktopWindow> m_host;
};

/// Something that moves in the window.
struct Scene {
    const char *name;
    /// Brings the window to where the scene begins.
    std::function<void(Stage &stage)> prepare;
    /// The measured part.
    std::function<void(Stage &stage)> play;
    /// Puts everything back.
    std::function<void(Stage &stage)> leave;
};

[[nodiscard]] std::vector<Scene> allScenes();

/// A place at which nothing happens until a person does something.
struct Rest {
    const char *name;
    bool isSignedIn;
    /// Whether a text cursor blinks there.
    bool hasCursor;
    /// Brings the window from where it begins to there.
    std::function<void(Stage &stage)> reach;
};

[[nodiscard]] std::vector<Rest> allRests();
