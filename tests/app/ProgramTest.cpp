// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/MuteSocket.h"
#include "harness/TestRunner.h"
#include "model/BuildConstants.h"

#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// The signals that a process has handlers for, the lowest bit standing for signal 1.
quint64 caughtSignals(pid_t pid)
{
    QFile status(u"/proc/%1/status"_s.arg(pid));
    if (!status.open(QFile::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("SigCgt:") + 8, 16).toULongLong(nullptr, 16);
}

/// Qt's own options, and a URL that looks like an option: neither keeps the program from running.
const QStringList runningArguments{u"-platform"_s, u"offscreen"_s, u"--"_s, u"--version"_s};

struct Answer {
    QStringList arguments;
    int status;
    QByteArray output;
    QByteArray complaint;
};

} // namespace

/// The program as a process.
class ProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestRunner::startsPrograms()) {
            QSKIP("No program can be started here.");
        }
    }

    void endsCleanlyWhenTold()
    {
        for (const int signalNumber : {SIGTERM, SIGINT, SIGHUP}) {
            QProcess program;
            program.setProcessChannelMode(QProcess::MergedChannels);
            program.start(QStringLiteral(WZT_PROGRAM), runningArguments);
            QVERIFY(program.waitForStarted());
            const auto pid = static_cast<pid_t>(program.processId());
            // Ready once it has a handler of its own for the signal.
            QTRY_VERIFY(caughtSignals(pid) >> (signalNumber - 1) & 1);
            kill(pid, signalNumber);
            QVERIFY(program.waitForFinished(TestRunner::patience));
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.readAll(), QByteArray());
            QCOMPARE(program.exitCode(), 0);
        }
    }

    /// They come with the first request and the first link. Qt itself may need other builds of
    /// curl.
    void startsWithoutWhatLoginDoesNotNeed()
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_LOGGING_RULES"_s, u"qt.scenegraph.time.renderloop=true"_s);
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(WZT_PROGRAM), runningArguments);
        QByteArray log;
        QTRY_VERIFY((log += program.readAll()).contains("Frame rendered"));
        const auto pid = static_cast<pid_t>(program.processId());
        QFile maps(u"/proc/%1/maps"_s.arg(pid));
        QVERIFY(maps.open(QFile::ReadOnly));
        const QByteArray files = maps.readAll();
        QVERIFY(files.contains("libQt6Quick"));
        for (const char *library : {"libcurl.so", "wzt-http.so", "wzt-links.so"}) {
            QVERIFY2(!files.contains(library), library);
        }
        kill(pid, SIGTERM);
        QVERIFY(program.waitForFinished(TestRunner::patience));
    }

    /// Where Qt's plugins, too, would wait for the bus of the desktop.
    void startsBesideAMuteBus()
    {
        const QTemporaryDir folder;
        const MuteSocket bus(folder.filePath(u"bus"_s).toUtf8());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                           "unix:path="_L1 + folder.filePath(u"bus"_s));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(WZT_PROGRAM), runningArguments);
        QVERIFY(program.waitForStarted());
        const auto pid = static_cast<pid_t>(program.processId());
        QTRY_VERIFY(caughtSignals(pid) >> (SIGTERM - 1) & 1);
        kill(pid, SIGTERM);
        QVERIFY(program.waitForFinished(TestRunner::patience));
        QCOMPARE(program.readAll(),
                 "The session bus does not answer: this start does without it.\n");
        QCOMPARE(program.exitCode(), 0);
    }

    void answersWithoutDisplay()
    {
        const QByteArray version = "wzt-companion " + QByteArray(BuildConstants::version) + '\n';
        const QString url = QLatin1StringView(BuildConstants::urlScheme) + ":x"_L1;
        const Answer answers[] = {
            {{u"--version"_s}, 0, version, {}},
            {{url, u"-v"_s}, 0, version, {}},
            {{u"-session"_s, u"1"_s, u"--help"_s}, 0, "Usage: ", {}},
            {{u"--verison"_s}, 1, {}, "verison"},
            {{url, u"-platform"_s}, 1, {}, "platform"},
        };
        QProcessEnvironment nowhere = QProcessEnvironment::systemEnvironment();
        nowhere.insert(u"QT_QPA_PLATFORM"_s, u"missing"_s);
        for (const Answer &answer : answers) {
            QProcess program;
            program.setProcessEnvironment(nowhere);
            program.start(QStringLiteral(WZT_PROGRAM), answer.arguments);
            QVERIFY(program.waitForFinished(TestRunner::patience));
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), answer.status);
            const QByteArray output = program.readAllStandardOutput();
            QVERIFY2(output.startsWith(answer.output), output.constData());
            const QByteArray complaint = program.readAllStandardError();
            QVERIFY2(complaint.contains(answer.complaint), complaint.constData());
            // A complaint is one line on standard error, an answer none.
            QCOMPARE(complaint.count('\n'), answer.status);
            QCOMPARE(output.isEmpty(), answer.output.isEmpty());
        }
    }

    /// Its log is a file that cannot grow.
    void survivesAFullDisk()
    {
#ifdef __SANITIZE_THREAD__
        QSKIP("The thread sanitizer writes to a file when a program starts.");
#endif
        const QTemporaryDir folder;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_DEBUG_PLUGINS"_s, u"1"_s); // writes many lines
        program.setProcessEnvironment(environment);
        program.setStandardErrorFile(folder.filePath(u"log"_s));
        program.setChildProcessModifier([] {
            const rlimit none{0, 0};
            setrlimit(RLIMIT_FSIZE, &none);
        });
        program.start(QStringLiteral(WZT_PROGRAM));
        QVERIFY(program.waitForStarted());
        const auto pid = static_cast<pid_t>(program.processId());
        QTRY_VERIFY(program.state() == QProcess::NotRunning
                    || caughtSignals(pid) >> (SIGTERM - 1) & 1);
        QCOMPARE(program.state(), QProcess::Running);
        kill(pid, SIGTERM);
        QVERIFY(program.waitForFinished(TestRunner::patience));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }
};

WZT_TEST(ProgramTest)
#include "ProgramTest.moc"
