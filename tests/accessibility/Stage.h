// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/Sandbox.h"
#include "tests/accessibility/ScreenReader.h"
#include "tests/support/TestProcess.h"

/// The application in a process of its own, on a display that nobody sees, over a service of its
/// own, and a screen reader that listens. Needs a session bus.
class Stage {
public:
    Stage();

    [[nodiscard]] sandbox::Sandbox &service() { return m_service; }
    [[nodiscard]] ScreenReader &reader() { return *m_reader; }
    void launch();
    /// False if the application does not end, or not in good order.
    bool quit() { return m_application.end(); }

private:
    sandbox::Sandbox m_service{{.hashMemory = 8192, .hashPasses = 1}};
    TestProcess m_display;
    TestProcess m_accessibility;
    std::unique_ptr<ScreenReader> m_reader;
    TestProcess m_application;
};
