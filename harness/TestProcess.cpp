// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestProcess.h"

#include "harness/TestRunner.h"

#include <csignal>

#include <linux/close_range.h>
#include <sys/prctl.h>
#include <unistd.h>

TestProcess::TestProcess()
{
    setProcessChannelMode(QProcess::ForwardedErrorChannel);
    setChildProcessModifier([] {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        // A port of the test's is not held open by the program.
        ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    });
}

TestProcess::~TestProcess()
{
    end();
}

QByteArray TestProcess::startAndRead(const QString &program, const QStringList &arguments)
{
    start(program, arguments);
    while (!canReadLine()) {
        if (!waitForReadyRead(TestRunner::patience)) {
            qFatal("%s does not start", qPrintable(program));
        }
    }
    return readLine().trimmed();
}

bool TestProcess::end()
{
    if (state() != QProcess::NotRunning) {
        terminate();
        if (!waitForFinished(TestRunner::patience)) {
            return false;
        }
    }
    return exitStatus() == QProcess::NormalExit && exitCode() == 0;
}
