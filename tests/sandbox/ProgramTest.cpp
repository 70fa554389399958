// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestProcess.h"
#include "harness/TestRunner.h"
#include "sandbox/Sandbox.h"
#include "sandbox/endpoints/Packages.h"
#include "tests/sandbox/Client.h"

#include <QDir>
#include <QTemporaryDir>
#include <QUrl>

#include <csignal>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

const QString program = QStringLiteral(WZT_SANDBOX_PROGRAM);

/// A running wzt-sandbox, up to its ready line.
struct Running {
    explicit Running(const QString &directory)
    {
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, {u"--directory"_s, directory, u"--demo"_s});
        while (url.isEmpty()
               && (process.canReadLine() || process.waitForReadyRead(TestRunner::patience))) {
            const QStringList line = QString::fromUtf8(process.readLine()).trimmed().split(u'\t');
            if (line[0] == "account"_L1) {
                accounts.append(line);
            } else if (line[0] == "ready"_L1) {
                url = line.value(1);
                caFile = line.value(2);
            }
        }
    }

    [[nodiscard]] Client client() const { return {static_cast<quint16>(QUrl(url).port()), caFile}; }

    TestProcess process;
    QList<QStringList> accounts;
    QString url;
    QString caFile;
};

} // namespace

/// The program wzt-sandbox.
class ProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestRunner::startsPrograms()) {
            QSKIP("No program can be started here.");
        }
    }

    void demoAccountsAndIssuesAreMadeOnce()
    {
        const QTemporaryDir folder;
        for (const int signal : {SIGTERM, SIGINT}) {
            Running service(folder.path());
            Client client = service.client();
            QVERIFY(service.accounts.size() >= 2);
            for (const QStringList &account : service.accounts) {
                const Answer answer =
                    client.get("/login.php?userEmail=" + account[1].toUtf8().toUpper()
                               + "&userPassword=" + Sandbox::digestOf(account[2]));
                QCOMPARE(answer.json()[u"userName"].toString(), account[3]);
            }
            QList<qsizetype> counts;
            for (const QString &package : sandbox::packages()) {
                const QByteArray id = package.toLatin1();
                counts.append(client.get("/issues.php?packageId=" + id).list().size());
            }
            QCOMPARE(counts, (QList<qsizetype>{12, 3, 2000, 0, 5, 2}));
            ::kill(static_cast<pid_t>(service.process.processId()), signal);
            QVERIFY(service.process.waitForFinished(TestRunner::patience));
            QCOMPARE(service.process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(service.process.exitCode(), 0);
            const QByteArray printed = service.process.readAll();
            QVERIFY(printed.contains("GET /login.php: 200"));
            QVERIFY(!printed.contains(Sandbox::digestOf(service.accounts[0][2])));
            QVERIFY(!printed.contains("userEmail"));
        }
    }

    void filesAreForTheUserAlone()
    {
        const QTemporaryDir folder;
        const Sandbox::Options options{.directory = folder.path() + u"/made/here"_s};
        Sandbox service(options);
        service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
        QVERIFY(Sandbox(options).errorString().contains("another service"_L1));
        const auto files = QDir(service.directory()).entryInfoList(QDir::Files | QDir::System);
        QVERIFY(files.size() >= 6);
        for (const QFileInfo &info : files) {
            const auto others =
                QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
            QFile file(info.filePath());
            QVERIFY2(!(file.permissions() & others), qPrintable(info.fileName()));
            QVERIFY(!file.open(QFile::ReadOnly)
                    || !file.readAll().contains(Sandbox::digestOf(u"secret"_s)));
        }
    }

    void linesFromATerminal()
    {
        const QTemporaryDir folder;
        // Longer than the address of a socket can be.
        const QString directory = folder.path() + u'/' + u"d"_s.repeated(120);
        const auto stage = [&](const QString &line) {
            return QProcess::execute(program, {u"--directory"_s, directory, u"--stage"_s, line});
        };
        QCOMPARE(stage(u"clear"_s), 1); // nobody is there
        const Running service(directory);
        QCOMPARE(stage(u"/user.php json 503 '{\"result\": \"Ü\"}'"_s), 0);
        QCOMPARE(stage(u"/user.php sulk"_s), 1);
        QCOMPARE(service.client().get("/user.php").result(), u"Ü"_s);
        const auto control = QFile::permissions(directory + u"/control"_s);
        QVERIFY(!(control & (QFile::ReadGroup | QFile::ReadOther)));
    }
};

WZT_TEST(ProgramTest)
#include "ProgramTest.moc"
