// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestProcess.h"

#include <csignal>

#include <sys/prctl.h>

TestProcess::TestProcess()
{
    setProcessChannelMode(QProcess::ForwardedErrorChannel);
    setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

TestProcess::~TestProcess()
{
    end();
}

QByteArray TestProcess::startAndRead(const QString &program, const QStringList &arguments)
{
    start(program, arguments);
    while (!canReadLine()) {
        if (!waitForReadyRead(10000))
            qFatal("%s does not start", qPrintable(program));
    }
    return readLine().trimmed();
}

bool TestProcess::end()
{
    if (state() == QProcess::NotRunning)
        return true;
    terminate();
    return waitForFinished(10000) && exitStatus() == QProcess::NormalExit && exitCode() == 0;
}
