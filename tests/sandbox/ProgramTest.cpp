// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Packages.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/TestRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
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
        process.start(program, {u"--directory"_s, directory, u"--demo"_s});
        while (url.isEmpty() && (process.canReadLine() || process.waitForReadyRead(20'000))) {
            const QStringList line = QString::fromUtf8(process.readLine()).trimmed().split(u'\t');
            if (line[0] == "account"_L1) {
                accounts.append(line);
            } else if (line[0] == "ready"_L1) {
                url = line.value(1);
                caFile = line.value(2);
            }
        }
    }

    Client client() const { return {quint16(QUrl(url).port()), caFile}; }

    QProcess process;
    QList<QStringList> accounts;
    QString url;
    QString caFile;
};

} // namespace

/// The service as a program of its own.
class ProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void demoAccountsSignInAndSurvive()
    {
        const QTemporaryDir folder;
        for (const int signal : {SIGTERM, SIGINT}) {
            Running service(folder.path());
            QVERIFY(service.accounts.size() >= 2);
            for (const QStringList &account : service.accounts) {
                const QByteArray digest = Sandbox::digestOf(account[2]);
                const Answer answer =
                    service.client().get("/login.php?userEmail=" + account[1].toUtf8().toUpper()
                                         + "&userPassword=" + digest);
                QCOMPARE(answer.json().value(u"userName"_s).toString(), account[3]);
            }
            ::kill(pid_t(service.process.processId()), signal);
            QVERIFY(service.process.waitForFinished(5000));
            QCOMPARE(service.process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(service.process.exitCode(), 0);
            const QByteArray printed =
                service.process.readAllStandardOutput() + service.process.readAllStandardError();
            QVERIFY(printed.contains("GET /login.php: 200"));
            QVERIFY(!printed.contains(Sandbox::digestOf(service.accounts[0][2])));
            QVERIFY(!printed.contains("userEmail"));
        }
    }

    void demoIssuesAreMadeOnce()
    {
        const QTemporaryDir folder;
        for (int start = 0; start < 2; ++start) {
            Running service(folder.path());
            QList<qsizetype> counts;
            for (const QString &package : sandbox::packages()) {
                const Answer answer =
                    service.client().get("/issues.php?packageId=" + package.toLatin1());
                counts.append(QJsonDocument::fromJson(answer.body).array().size());
            }
            QCOMPARE(counts, (QList<qsizetype>{12, 3, 2000, 0, 5, 2}));
            service.process.terminate();
            QVERIFY(service.process.waitForFinished(5000));
        }
    }

    void linesFromATerminal()
    {
        const QTemporaryDir folder;
        // Longer than the address of a socket may be.
        const QString directory = folder.path() + u'/' + u"d"_s.repeated(120);
        const auto stage = [&](const QString &line) {
            return QProcess::execute(program, {u"--directory"_s, directory, u"--stage"_s, line});
        };
        QCOMPARE(stage(u"clear"_s), 1);
        Running service(directory);
        Client client = service.client();
        QCOMPARE(stage(u"/user.php json 503 '{\"result\": \"Ü\"}' 2"_s), 0);
        QCOMPARE(stage(u"/user.php sulk"_s), 1);
        QCOMPARE(client.get("/user.php").result(), u"Ü"_s);
        QCOMPARE(client.get("/user.php").status, 503);
        QCOMPARE(client.get("/user.php").status, 400);
        QCOMPARE(QFile::permissions(directory + u"/control"_s)
                     & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        service.process.terminate();
        QVERIFY(service.process.waitForFinished(5000));
        QCOMPARE(stage(u"clear"_s), 1);
    }

    void wrongUse()
    {
        for (const QStringList &arguments : {QStringList{u"--demo"_s},
                                             {u"--directory"_s, u"x"_s, u"--port"_s, u"65536"_s},
                                             {u"--directory"_s, u"x"_s, u"--prot"_s, u"1"_s},
                                             {u"--directory"_s, u"/proc/x"_s}}) {
            QProcess process;
            process.start(program, arguments);
            QVERIFY(process.waitForFinished(10'000));
            QCOMPARE(process.exitCode(), 1);
            QVERIFY(!process.readAllStandardError().isEmpty());
        }
    }
};

WZT_TEST(ProgramTest)
#include "ProgramTest.moc"
