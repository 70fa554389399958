// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class UIApplicationDelegate;

/// Tells a delegate how the application comes to the front and goes to the background. It begins
/// in front of nothing: launched and not active.
class LifeCycle {
public:
    /// `delegate` outlives this.
    explicit LifeCycle(UIApplicationDelegate &delegate) : m_delegate(delegate) {}

    /// The application is in `state` now, which may be the state it was in.
    void enter(Qt::ApplicationState state);

private:
    UIApplicationDelegate &m_delegate;
    bool m_active = false;
    bool m_background = false;
};
