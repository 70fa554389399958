// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Figures.h"
#include "bench/Instructions.h"
#include "bench/Measurements.h"
#include "harness/TestApp.h"
#include "platform/foundation/storage/NSUserDefaults.h"

#include <QProcess>
#include <QTemporaryDir>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int startRounds = 15;
constexpr int patience = 10'000;

struct Program {
    const char *name;
    Command command;
    QList<double> milliseconds = {};
    QList<double> mebibytes = {};
    double instructions = 0;
};

/// As the probe counts.
qint64 nanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

/// Starts it, lets it come to rest after its first frame, and ends it.
void run(Program &program)
{
    QProcess process;
    process.setProcessEnvironment(program.command.environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const qint64 start = nanoseconds();
    process.start(program.command.program, program.command.arguments);
    if (!process.waitForReadyRead(patience)) {
        qFatal("%s shows no frame", qPrintable(program.command.program));
    }
    const qint64 frame = process.readLine().trimmed().toLongLong();
    process.waitForFinished(300);
    program.milliseconds.append(static_cast<double>(frame - start) / 1e6);
    program.mebibytes.append(peakMebibytes(process.processId()));
    process.terminate();
    process.waitForFinished(patience);
}

/// Once is enough: the count is the same to a thousandth. Leaves a report in `folder`.
void count(Program &program, const QString &folder)
{
    Command command = program.command;
    command.environment.insert(u"WZT_PROBE_ENDS"_s, u"1"_s);
    const QString report =
        folder + "/callgrind.out."_L1 + QString::fromLatin1(program.name).replace(u' ', u'-');
    program.instructions = millionInstructions(command, report);
}

/// A folder or a constant of the release, as ./dev names them.
QString release(const char *name)
{
    if (!qEnvironmentVariableIsSet(name)) {
        qFatal("%s is not set: ./dev bench sets it", name);
    }
    return qEnvironmentVariable(name);
}

Program measured(const char *name, const QString &path, const QTemporaryDir &home,
                 const QStringList &arguments = {})
{
    const QString folder = release("WZT_RELEASE");
    Program program{name, {.program = folder + path, .arguments = arguments}};
    program.command.environment.insert(u"HOME"_s, home.path());
    program.command.environment.insert(u"LD_PRELOAD"_s,
                                       folder + "/bench/floors/libwzt-bench-probe.so"_L1);
    return program;
}

void keepUser(const QString &home)
{
    const QString id = release("WZT_RELEASE_ID");
    const WZTUser user(1, u"jo@wzt.example"_s, u"Jo"_s);
    NSUserDefaults defaults(id, home + "/.config"_L1);
    if (!defaults.setObject(TestApp::archived(user), u"currentUser"_s)) {
        qFatal("nobody can be signed in");
    }
}

} // namespace

void measureStarts(const QStringList &arguments)
{
    const QTemporaryDir nobody;
    const QTemporaryDir somebody;
    const QTemporaryDir reports;
    keepUser(somebody.path());
    const auto window = u"/bench/floors/wzt-bench-window"_s;
    const auto application = u"/app/wzt-companion"_s;
    Program programs[] = {
        measured("an empty window", window, nobody),
        measured("one line of text", window, nobody, {u"WZT Companion"_s}),
        measured("signed out", application, nobody),
        measured("signed in", application, somebody),
    };
    for (Program &program : programs) {
        run(program); // from here on everything is in the machine's memory
        program.milliseconds.clear();
        program.mebibytes.clear();
    }
    for (int round = 0; round < startRounds; ++round) {
        for (Program &program : programs) {
            run(program);
        }
    }
    for (Program &program : programs) {
        count(program, arguments.value(0, reports.path()));
    }
    const Table table(u"From exec to the first frame, and how many times a window with one line of "
                      "text in the application's font"_s,
                      {u"ms"_s, u"times"_s, u"MiB"_s, u"times"_s, u"M instr."_s, u"times"_s});
    const Program &floor = programs[1];
    for (const Program &program : programs) {
        QStringList cells;
        const auto compare = [&cells](double figure, double of) {
            cells += {Table::number(figure), Table::number(figure / of)};
        };
        compare(median(program.milliseconds), median(floor.milliseconds));
        compare(median(program.mebibytes), median(floor.mebibytes));
        compare(program.instructions, floor.instructions);
        table.row(QLatin1StringView(program.name), cells);
    }
}
