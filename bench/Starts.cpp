// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Figures.h"
#include "bench/Measurements.h"
#include "harness/TestApp.h"
#include "model/BuildConstants.h"
#include "platform/foundation/storage/NSUserDefaults.h"

#include <QProcess>
#include <QTemporaryDir>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 15;
constexpr int patience = 10'000;

struct Program {
    const char *name;
    QString path;
    /// Its user's home.
    QString home;
    QList<double> milliseconds = {};
    QList<double> mebibytes = {};
};

/// As the probe counts.
qint64 nanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

double peakMebibytes(qint64 pid)
{
    QFile status(u"/proc/%1/status"_s.arg(pid));
    if (!status.open(QFile::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const QByteArray number = text.mid(text.indexOf("VmHWM:") + 6).trimmed();
    return number.first(number.indexOf(' ')).toDouble() / 1024;
}

/// Starts it, lets it come to rest after its first frame, and ends it.
void run(Program &program)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, program.home);
    environment.insert(u"LD_PRELOAD"_s, QStringLiteral(WZT_PROBE));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const qint64 start = nanoseconds();
    process.start(program.path);
    if (!process.waitForReadyRead(patience)) {
        qFatal("%s shows no frame", qPrintable(program.path));
    }
    const qint64 frame = process.readLine().trimmed().toLongLong();
    process.waitForFinished(300);
    program.milliseconds.append(static_cast<double>(frame - start) / 1e6);
    program.mebibytes.append(peakMebibytes(process.processId()));
    process.terminate();
    process.waitForFinished(patience);
}

void keepUser(const QString &home)
{
    const QString id = QString::fromLatin1(BuildConstants::applicationId);
    const WZTUser user(1, u"jo@wzt.example"_s, u"Jo"_s);
    NSUserDefaults defaults(id, home + "/.config/"_L1 + id);
    if (!defaults.setObject(TestApp::archived(user), u"currentUser"_s)) {
        qFatal("nobody can be signed in");
    }
}

} // namespace

void measureStarts()
{
    const QTemporaryDir nobody;
    const QTemporaryDir somebody;
    keepUser(somebody.path());
    Program programs[] = {
        {"floor", QStringLiteral(WZT_BARE), nobody.path()},
        {"signed out", QStringLiteral(WZT_PROGRAM), nobody.path()},
        {"signed in", QStringLiteral(WZT_PROGRAM), somebody.path()},
    };
    for (Program &program : programs) {
        run(program); // from here on everything is in the machine's memory
        program.milliseconds.clear();
        program.mebibytes.clear();
    }
    for (int round = 0; round < rounds; ++round) {
        for (Program &program : programs) {
            run(program);
        }
    }
    const Program &floor = programs[0];
    const Table table(u"From exec to the first frame, beside an empty window"_s,
                      {u"figure"_s, u"floor"_s, u"times"_s});
    for (const Program &program : {programs[1], programs[2]}) {
        const QLatin1StringView name(program.name);
        table.comparison(name + ", ms"_L1, median(program.milliseconds),
                         median(floor.milliseconds));
        table.comparison(name + ", MiB at most"_L1, median(program.mebibytes),
                         median(floor.mebibytes));
    }
}
