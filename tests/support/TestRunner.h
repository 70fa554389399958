// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Runs the test classes of one program, one after the other.
///
///     WZT_TEST(UserTest)      // in UserTest.cpp, after the class
///
/// With a class's name as its first argument the program runs that class alone and hands it the
/// arguments that follow: `test_model UserTest roundTrip`.
namespace TestRunner {

using Maker = std::function<std::unique_ptr<QObject>()>;

void add(Maker make);

/// Returns how many test functions failed, 0 for success; running no class at all is a failure.
[[nodiscard]] int run();

/// Whether programs can be started: not on every release of QEMU's emulation of a processor.
[[nodiscard]] bool startsPrograms();

template <class Test>
struct Registration {
    Registration()
    {
        add([] { return std::make_unique<Test>(); });
    }
};

} // namespace TestRunner

#define WZT_TEST(Test) static const TestRunner::Registration<Test> registration##Test;
