// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/ControlSocket.h"
#include "sandbox/DemoAccounts.h"
#include "sandbox/DemoIssues.h"
#include "sandbox/Sandbox.h"
#include "sandbox/faults/StageCommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <csignal>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t hashMemory = size_t{64} * 1024 * 1024;

void print(const QString &line)
{
    static std::mutex mutex;
    const std::lock_guard guard(mutex);
    QTextStream(stdout) << line << Qt::endl;
}

int fail(const QString &problem)
{
    QTextStream(stderr) << "wzt-sandbox: " << problem << Qt::endl;
    return 1;
}

const QList<QCommandLineOption> &options()
{
    static const QList<QCommandLineOption> all{
        {u"directory"_s, u"State of the service: certificates, accounts, issues, messages."_s,
         u"DIR"_s},
        {u"port"_s, u"Port on 127.0.0.1 and ::1; 0, the default, picks a free one."_s, u"N"_s,
         u"0"_s},
        {u"demo"_s,
         u"Make the demo accounts, or give them their first passwords again, and print them; make "
         u"the demo issues unless there are issues."_s},
        {u"stage"_s, u"Hand a line to the service that runs in DIR, and end."_s, u"LINE"_s},
    };
    return all;
}

void parse(QCommandLineParser &parser, const QCoreApplication &application)
{
    parser.setApplicationDescription(
        u"A web service for the WZT Companion on this machine alone.\n\n"
        u"Lines for --stage, and for the socket DIR/control; a count may follow each but the "
        u"last,\n"
        u"1 if left out, -1 for no end; a word with blanks stands between apostrophes:\n"_s
        + sandbox::stageCommandHelp());
    parser.addHelpOption();
    parser.addOptions(options());
    parser.process(application);
}

void makeDemoAccounts(sandbox::Sandbox &service)
{
    const auto accounts = sandbox::demoAccounts();
    for (const auto &[account, password] : accounts) {
        if (!service.setPassword(account.email, password)) {
            service.addAccount(account, password);
        }
        print(u"account\t%1\t%2\t%3"_s.arg(account.email, password, account.name));
    }
}

void makeDemoIssues(sandbox::Sandbox &service)
{
    if (service.issueCount() == 0) {
        service.addIssues(sandbox::demoIssues());
    }
}

// Before any thread is started, so that all of them leave these signals to waitForEnd().
sigset_t blockEndSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int each : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, each);
    }
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

int serve(const QCommandLineParser &parser, quint16 port)
{
    const sigset_t endSignals = blockEndSignals();
    std::signal(SIGPIPE, SIG_IGN);
    sandbox::Sandbox service({.directory = parser.value(u"directory"_s),
                              .port = port,
                              .hashMemory = hashMemory,
                              .log = print});
    if (!service.isRunning()) {
        return fail(service.errorString());
    }
    sandbox::ControlSocket control;
    const QString problem = control.open(
        service.directory(), [&service](const QString &line) { return service.stageLine(line); });
    if (!problem.isEmpty()) {
        return fail(problem);
    }
    if (parser.isSet(u"demo"_s)) {
        makeDemoAccounts(service);
        makeDemoIssues(service);
    }
    print(u"ready\thttps://localhost:%1\t%2"_s.arg(QString::number(service.port()),
                                                   service.caFile()));
    int received = 0;
    sigwait(&endSignals, &received);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parse(parser, application);
    const QString directory = parser.value(u"directory"_s);
    if (directory.isEmpty()) {
        return fail(u"--directory is missing"_s);
    }
    if (parser.isSet(u"stage"_s)) {
        const QString answer = sandbox::ControlSocket::send(directory, parser.value(u"stage"_s));
        return answer == "ok"_L1 ? 0 : fail(answer);
    }
    bool isPort = false;
    const quint16 port = parser.value(u"port"_s).toUShort(&isPort);
    return isPort ? serve(parser, port) : fail(u"--port is no port"_s);
}
