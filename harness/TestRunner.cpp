// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"

#include <QCoreApplication>
#include <QEvent>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <vector>

#include <sys/prctl.h>

namespace {

std::vector<TestRunner::Maker> &makers()
{
    static std::vector<TestRunner::Maker> all;
    return all;
}

} // namespace

void TestRunner::add(Maker make)
{
    makers().push_back(std::move(make));
}

int TestRunner::run()
{
    // Ctrl-C ends CTest but not its tests, which are in process groups of their own.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    const QStringList arguments = QCoreApplication::arguments();
    int failures = 0;
    int classes = 0;
    for (const Maker &make : makers()) {
        const std::unique_ptr<QObject> test = make();
        const QString name = QString::fromLatin1(test->metaObject()->className());
        const bool only = arguments.size() > 1 && arguments[1] == name;
        const bool isNamed = arguments.size() > 1 && !arguments[1].startsWith(QLatin1Char('-'));
        if (isNamed && !only) {
            continue;
        }
        QStringList rest = arguments;
        if (only) {
            rest.removeAt(1);
        }
        failures += QTest::qExec(test.get(), rest);
        // Nothing that was to be deleted later counts as a leak.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ++classes;
    }
    return classes > 0 ? failures : 1;
}

bool TestRunner::startsPrograms()
{
    QProcess program;
    program.start(QStringLiteral("true"));
    return program.waitForFinished();
}
