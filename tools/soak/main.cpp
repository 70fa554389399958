// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Life after life of the application on one home folder, over a service that fails in every way.
// Most are killed, the last one ends in good order. Prints the losses.

#include "harness/TestProcess.h"
#include "harness/TestSession.h"
#include "model/BuildConstants.h"
#include "sandbox/DemoIssues.h"
#include "sandbox/Sandbox.h"
#include "sandbox/endpoints/Packages.h"
#include "tools/random/RandomRuns.h"
#include "tools/soak/Ledger.h"
#include "tools/soak/Life.h"
#include "tools/soak/SmallDisk.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using sandbox::ConnectionKind;
using sandbox::Fault;
using sandbox::Sandbox;

constexpr int livesOfAShortRun = 8;
constexpr int stepsOfAShortRun = 100;

// None that lies: where the service says that it has a report, it has it.
const Fault faults[] = {
    Fault::delay(50ms),
    Fault::silence(),
    Fault::close(),
    Fault::reset(),
    Fault::wrongLength(5),
    Fault::wrongLength(-5),
    Fault::drip(2000, 5ms),
    Fault::status(503),
    Fault::json(R"({"result":"Incorrect"})"),
    Fault::json("[]").after(30ms),
    Fault::raw("HTTP/1.1 200 OK\r\n"),
    Fault::raw("\r\n\r\n"),
    Fault::redirectLoop(),
    Fault::redirectToOtherHost(),
};
constexpr ConnectionKind connectionKinds[] = {ConnectionKind::Expired, ConnectionKind::Untrusted,
                                              ConnectionKind::NoHandshake};

class Soak {
public:
    explicit Soak(quint32 seed) : m_dice(seed), m_life(seed * 10000)
    {
        // Links have no handlers here.
        qputenv("XDG_DATA_DIRS", QFile::encodeName(m_session.home()));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(m_session.home()));
        // Freed memory is not counted.
        qputenv("ASAN_OPTIONS", QByteArray(qgetenv("ASAN_OPTIONS") + ":quarantine_size_mb=1"));
        startService();
        m_port = m_service->port();
        for (const QString &address : Life::addresses) {
            m_service->addAccount({.email = address, .name = address}, Life::password);
        }
        m_service->addIssues(sandbox::demoIssues());
    }

    /// Half of the seconds for those that are killed; for 0, some lives and steps, and as many more
    /// as it takes to try everything.
    bool run(int seconds)
    {
        QElapsedTimer time;
        time.start();
        const auto isTime = [&](int part) {
            return time.elapsed() >= static_cast<qint64>(part) * seconds;
        };
        for (int lives = 0; seconds ? !isTime(500) : lives < livesOfAShortRun; ++lives) {
            killOne();
        }
        live(Ledger::End::InOrder, 0, [&, steps = 0](const QByteArray &line) mutable {
            steps += line == "step" ? 1 : 0;
            return seconds ? isTime(1000) : steps >= stepsOfAShortRun && m_ledger.hasTriedAll();
        });
        startService();
        std::printf("full disks are         %s\n",
                    m_disk.isMounted() ? "4 MiB, mounted" : "limits of file sizes");
        return m_ledger.print(titles());
    }

private:
    // At the port of before, which somebody else may have for a moment.
    void startService()
    {
        for (int tries = 0; !m_service || !m_service->isRunning(); ++tries) {
            if (tries == 100) {
                qFatal("no service: %s", qPrintable(m_service->errorString()));
            }
            QThread::msleep(tries ? 100 : 0);
            m_service.reset();
            m_service = std::make_unique<Sandbox>(Sandbox::Options{
                .directory = m_state.path(), .port = m_port, .hashMemory = 8192, .hashPasses = 1});
        }
    }

    void makeTrouble()
    {
        if (!m_service) {
            if (m_dice.once(5)) {
                startService();
            }
        } else if (m_dice.once(60)) {
            m_service.reset();
        } else if (m_dice.once(10)) {
            m_service->stageConnection(m_dice.oneOf(connectionKinds));
        } else if (m_dice.once(3)) {
            m_service->stage("*", m_dice.oneOf(faults));
        }
    }

    // After some lines, or while somebody signs in or out.
    void killOne()
    {
        const int lines = m_dice.between(1, 80);
        const int alarm = m_dice.once(3) ? 0 : m_dice.between(1, 1 << m_dice.between(4, 13));
        live(Ledger::End::Killed, alarm,
             [&, taken = 0](const QByteArray &) mutable { return ++taken == lines; });
    }

    void live(Ledger::End wanted, int alarm,
              const std::function<bool(const QByteArray &line)> &isEnough)
    {
        m_ledger.begin();
        m_disk.empty();
        TestProcess life;
        life.start(m_program,
                   {QString::number(++m_life), QString::number(m_port),
                    m_state.filePath(u"ca.pem"_s), QString::number(alarm),
                    m_disk.isMounted() ? configFolder() : QString()});
        bool isAsked = false;
        const auto takeLines = [&] {
            while (life.canReadLine()) {
                const QByteArray line = life.readLine().trimmed();
                m_ledger.take(line);
                if (line == "step") {
                    makeTrouble();
                }
                if (!isAsked && isEnough(line)) {
                    isAsked = true;
                    wanted == Ledger::End::Killed ? life.kill() : life.terminate();
                }
            }
        };
        while (life.waitForReadyRead(-1)) {
            takeLines();
        }
        life.waitForFinished(-1);
        takeLines();
        const bool inOrder = life.exitStatus() == QProcess::NormalExit && life.exitCode() == 0;
        const bool isKilled = life.exitStatus() == QProcess::CrashExit
            && (life.exitCode() == SIGKILL || (alarm && life.exitCode() == SIGALRM));
        const bool asWanted = wanted == Ledger::End::Killed ? isKilled : isAsked && inOrder;
        m_ledger.end(asWanted ? wanted : Ledger::End::Crashed, takeDamaged());
    }

    // Whether a file was found damaged and so was moved aside.
    [[nodiscard]] bool takeDamaged() const
    {
        const QDir folder(configFolder() + u'/' + QLatin1StringView(BuildConstants::applicationId));
        const QStringList damaged = folder.entryList({u"*.damaged-*"_s}, QDir::Dirs);
        for (const QString &each : damaged) {
            QDir(folder.filePath(each)).removeRecursively();
        }
        return !damaged.isEmpty();
    }

    // Those of all reports, the first ones apart.
    [[nodiscard]] QStringList titles() const
    {
        QStringList all;
        for (const QString &package : sandbox::packages()) {
            for (const sandbox::Issue &issue : m_service->issues(package)) {
                if (issue.title.contains(" of life "_L1)) {
                    all.append(issue.title);
                }
            }
        }
        return all;
    }

    [[nodiscard]] QString configFolder() const { return m_session.home() + u"/.config"_s; }

    // Before the small disk is mounted: in a chroot nobody knows it afterwards.
    QString m_program = QCoreApplication::applicationFilePath();
    TestSession m_session;
    SmallDisk m_disk{configFolder()};
    RandomRuns::Dice m_dice;
    quint32 m_life;
    quint16 m_port = 0;
    QTemporaryDir m_state;
    std::unique_ptr<Sandbox> m_service; // null while there is none
    Ledger m_ledger;
};

} // namespace

// [SECONDS [SEED]], or the arguments of Life.
int main(int argc, char *argv[])
{
    if (argc == 6) {
        return Life::live(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Soak soak(arguments.value(2, u"1"_s).toUInt());
    return soak.run(arguments.value(1).toInt()) ? 0 : 1;
}
