// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

/// Runs this program once more, and serves the test's bus until it has ended. Its output.
inline QByteArray runOtherProcess(const QStringList &arguments,
                                  const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    // Less than the time that a D-Bus call waits for an answer.
    [&] { QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 20000); }();
    return process.readAll();
}
