// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "harness/TestSession.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const TestSession session;
    const QCoreApplication application(argc, argv);
    const auto bus = session.startBus();
    return TestRunner::run();
}
