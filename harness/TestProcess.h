// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

/// A program that ends with the test that started it, however that ends. What it complains about
/// is heard.
class TestProcess : public QProcess {
public:
    TestProcess();
    ~TestProcess() override;
    Q_DISABLE_COPY_MOVE(TestProcess)

    /// Starts the program and waits for the first line that it writes, which is returned. There is
    /// no test without it.
    QByteArray startAndRead(const QString &program, const QStringList &arguments);
    /// Asks the program to end. False if it does not within some seconds, or not in good order.
    bool end();
};
