// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/Cases.h"

#include <functional>
#include <memory>

/// Runs the test classes of one program, one after the other.
///
///     WZT_TEST(UserTest)      // in UserTest.cpp, after the class
///
/// With a class's name as its first argument the program runs that class alone and hands it the
/// arguments that follow: `test_model UserTest roundTrip`.
namespace TestRunner {

/// How many milliseconds anything may take that a test waits for.
constexpr int patience = 30'000;

using Maker = std::function<std::unique_ptr<QObject>()>;

void add(Maker make);

/// Returns how many test functions failed, 0 for success; running no class at all is a failure.
[[nodiscard]] int run();

/// Whether programs can be started: not on every release of QEMU's emulation of a processor.
[[nodiscard]] bool startsPrograms();

template <typename Test>
struct Registration {
    Registration()
    {
        add([] { return std::make_unique<Test>(); });
    }
};

} // namespace TestRunner

// Qt's own give up after five seconds, which a busy machine may take.
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(statement) QTRY_VERIFY_WITH_TIMEOUT(statement, TestRunner::patience)
#define QTRY_VERIFY2(statement, text)                                                              \
    QTRY_VERIFY2_WITH_TIMEOUT(statement, text, TestRunner::patience)
#define QTRY_COMPARE(actual, expected)                                                             \
    QTRY_COMPARE_WITH_TIMEOUT(actual, expected, TestRunner::patience)

#define WZT_TEST(Test) static const TestRunner::Registration<Test> registration##Test;
