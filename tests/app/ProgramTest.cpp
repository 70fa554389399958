// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/Files.h"
#include "harness/MuteSocket.h"
#include "harness/TestProcess.h"
#include "harness/TestRunner.h"
#include "model/BuildConstants.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// The program with these variables beside the test's own, and all that it writes.
struct Companion : TestProcess {
    explicit Companion(std::initializer_list<std::pair<QString, QString>> variables = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto &[name, value] : variables) {
            environment.insert(name, value);
        }
        setProcessEnvironment(environment);
        setProcessChannelMode(QProcess::MergedChannels);
    }
    /// With Qt's own options, and a URL that looks like an option: neither keeps it from running.
    /// It is ready once it has a handler of its own for that signal.
    void run(int signalNumber = SIGTERM)
    {
        start(QStringLiteral(WZT_PROGRAM),
              {u"-platform"_s, u"offscreen"_s, u"--"_s, u"--version"_s});
        QVERIFY(waitForStarted());
        const auto handles = [&] { // the lowest bit stands for signal 1
            const QByteArray status = Files::content(u"/proc/%1/status"_s.arg(processId()));
            const QByteArray caught = status.mid(status.indexOf("SigCgt:") + 8, 16);
            return caught.toULongLong(nullptr, 16) >> (signalNumber - 1) & 1;
        };
        QTRY_VERIFY(state() == QProcess::NotRunning || handles());
        QCOMPARE(state(), QProcess::Running);
    }
};

using Answer = std::tuple<QStringList, int, QByteArray, QByteArray>;

} // namespace

/// The program as a process, and the files that describe it to the desktop.
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
            Companion program;
            program.run(signalNumber);
            QVERIFY(program.processId() > 0); // 0 would be this process, and all of its group
            kill(static_cast<pid_t>(program.processId()), signalNumber);
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
        Companion program({{u"QT_LOGGING_RULES"_s, u"qt.scenegraph.time.renderloop=true"_s}});
        program.run();
        QByteArray log;
        QTRY_VERIFY((log += program.readAll()).contains("Frame rendered"));
        const QByteArray files = Files::content(u"/proc/%1/maps"_s.arg(program.processId()));
        QVERIFY(files.contains("libQt6Quick"));
        for (const char *library : {"libcurl.so", "wzt-http.so", "wzt-links.so"}) {
            QVERIFY2(!files.contains(library), library);
        }
    }

    /// Where Qt's plugins, too, would wait for the bus of the desktop.
    void startsBesideAMuteBus()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"bus"_s);
        const MuteSocket bus(path.toUtf8());
        Companion program({{u"DBUS_SESSION_BUS_ADDRESS"_s, "unix:path="_L1 + path}});
        program.run();
        QVERIFY(program.end());
        QCOMPARE(program.readAll(),
                 "The session bus does not answer: this start does without it.\n");
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
        for (const auto &[arguments, status, answer, said] : answers) {
            Companion program({{u"QT_QPA_PLATFORM"_s, u"missing"_s}});
            program.setProcessChannelMode(QProcess::SeparateChannels);
            program.start(QStringLiteral(WZT_PROGRAM), arguments);
            QVERIFY(program.waitForFinished(TestRunner::patience));
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), status);
            const QByteArray output = program.readAllStandardOutput();
            QVERIFY2(output.startsWith(answer), output.constData());
            const QByteArray complaint = program.readAllStandardError();
            QVERIFY2(complaint.contains(said), complaint.constData());
            // A complaint is one line on standard error, an answer none.
            QCOMPARE(complaint.count('\n'), status);
            QCOMPARE(output.isEmpty(), answer.isEmpty());
        }
    }

    /// Its log is a file that cannot grow.
    void survivesAFullDisk()
    {
#ifdef __SANITIZE_THREAD__
        QSKIP("The thread sanitizer writes to a file when a program starts.");
#endif
        const QTemporaryDir folder;
        Companion program({{u"QT_DEBUG_PLUGINS"_s, u"1"_s}}); // writes many lines
        program.setProcessChannelMode(QProcess::SeparateChannels);
        program.setStandardErrorFile(folder.filePath(u"log"_s));
        program.setChildProcessModifier([] {
            const rlimit none{0, 0};
            setrlimit(RLIMIT_FSIZE, &none);
        });
        program.run();
        QVERIFY(program.end());
    }

    void theDesktopFilesMatchTheBuild()
    {
        const QString id = QString::fromLatin1(BuildConstants::applicationId);
        const QString scheme =
            "x-scheme-handler/"_L1 + QLatin1StringView(BuildConstants::urlScheme);
        const QString program = QFileInfo(QStringLiteral(WZT_PROGRAM)).fileName();
        const QTemporaryDir prefix;
        QCOMPARE(QProcess::execute(
                     QStringLiteral(WZT_CMAKE),
                     {u"--install"_s, QStringLiteral(WZT_PACKAGING), u"--prefix"_s, prefix.path()}),
                 0);
        const QString share = prefix.filePath(u"share/"_s);
        const QString name = QString::fromUtf8(BuildConstants::displayName);
        const QString validator = QStandardPaths::findExecutable(u"desktop-file-validate"_s);
        if (!validator.isEmpty()) {
            QCOMPARE(
                QProcess::execute(validator, {share + u"applications/"_s + id + u".desktop"_s}), 0);
        }
        // A file, and the lines that it has to have.
        const std::pair<QString, QStringList> rows[] = {
            {share + u"applications/"_s + id + u".desktop"_s,
             {"Name="_L1 + name, "Icon="_L1 + id, "Exec="_L1 + program + " %u"_L1,
              "MimeType="_L1 + scheme + u';', "StartupWMClass="_L1 + id}},
            {share + u"metainfo/"_s + id + u".metainfo.xml"_s,
             {"<id>"_L1 + id + "</id>"_L1, "<name>"_L1 + name + "</name>"_L1,
              "<launchable type=\"desktop-id\">"_L1 + id + ".desktop</launchable>"_L1,
              "<binary>"_L1 + program + "</binary>"_L1,
              "<mediatype>"_L1 + scheme + "</mediatype>"_L1,
              "<release version=\""_L1 + QLatin1StringView(BuildConstants::version)}},
            {share + u"dbus-1/services/"_s + id + u".service"_s,
             {"Name="_L1 + id, "Exec=\""_L1 + prefix.filePath(u"bin/"_s + program) + u'"'}},
            {QStringLiteral(WZT_PACKAGING "/") + id + u".yml"_s,
             {"id: "_L1 + id, "command: "_L1 + program}},
        };
        for (const auto &[path, lines] : rows) {
            const QString text = QString::fromUtf8(Files::content(path));
            QVERIFY2(!text.isEmpty(), qPrintable(path));
            for (const QString &line : lines) {
                const QRegularExpression start(u"^ *"_s + QRegularExpression::escape(line),
                                               QRegularExpression::MultilineOption);
                QVERIFY2(start.match(text).hasMatch(), qPrintable(line));
            }
            QVERIFY(!text.contains(u'@'));
        }
    }
};

WZT_TEST(ProgramTest)
#include "ProgramTest.moc"
