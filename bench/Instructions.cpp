// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Instructions.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int patienceWithValgrind = 600'000;

double totalOf(const QString &report)
{
    constexpr QByteArrayView name = "totals: ";
    QFile file(report);
    if (file.open(QFile::ReadOnly)) {
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            if (line.startsWith(name)) {
                return line.mid(name.size()).trimmed().toDouble();
            }
        }
    }
    qFatal("valgrind has counted nothing");
}

} // namespace

double millionInstructions(const Command &command, const QString &report)
{
    QProcess process;
    QProcessEnvironment environment = command.environment;
    // Where an entry of a hash lies is no matter of chance then.
    environment.insert(u"QT_HASH_SEED"_s, u"0"_s);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(u"valgrind"_s,
                  QStringList{u"--quiet"_s, u"--tool=callgrind"_s,
                              u"--callgrind-out-file="_s + report, command.program}
                      + command.arguments);
    if (!process.waitForFinished(patienceWithValgrind)
        || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qFatal("%s does not end well under valgrind", qPrintable(command.program));
    }
    return totalOf(report) / 1e6;
}

double millionInstructions(const Command &command)
{
    QTemporaryFile report;
    if (!report.open()) {
        qFatal("no temporary file can be made");
    }
    return millionInstructions(command, report.fileName());
}
