// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestProcess.h"

#include <QTemporaryDir>

#include <memory>

/// A person's session for this process and all that it starts: a home folder, a runtime folder,
/// and a session bus that starts no services. Nothing of the session around the test is seen.
class TestSession {
public:
    /// Before the application object is made: some libraries look at the environment once.
    TestSession();
    /// After it is made. The bus ends with the process that is returned. It gives every name but
    /// "example.wzt-test.Refused".
    [[nodiscard]] std::unique_ptr<TestProcess> startBus() const;

    [[nodiscard]] QString home() const { return m_home.path(); }

private:
    QTemporaryDir m_home;
};
