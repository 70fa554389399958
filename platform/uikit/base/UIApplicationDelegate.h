// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The events of the application. Everything on the main thread.
class UIApplicationDelegate {
public:
    virtual ~UIApplicationDelegate() = default;

    /// Builds the interface. Called once, before anything is drawn.
    virtual bool didFinishLaunchingWithOptions() = 0;
    /// A URL that another application handed over. Returns whether it was accepted.
    virtual bool openURL(const QString &url) = 0;

    virtual void applicationWillResignActive() = 0;
    virtual void applicationDidEnterBackground() = 0;
    virtual void applicationWillEnterForeground() = 0;
    virtual void applicationDidBecomeActive() = 0;
    virtual void applicationWillTerminate() = 0;
};
