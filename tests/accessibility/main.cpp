// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestRunner.h"
#include "tests/support/TestSession.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const TestSession session;
    const QCoreApplication application(argc, argv);
    const auto bus = session.startBus();
    return TestRunner::run();
}
