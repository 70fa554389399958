// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Idle.h"

#include "app/Renderer.h"
#include "bench/Figures.h"
#include "bench/Measurements.h"
#include "bench/Scenes.h"
#include "bench/Threads.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto duration = 30s;
/// Until the last transition is over, and what was only needed for it is gone.
constexpr auto settling = 3s;
constexpr int idlePatience = 60'000;
/// Of a second: a text cursor that appears and disappears.
constexpr int blinks = 2;

std::unique_ptr<QProcess> start(const Rest &rest)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(),
                   {u"rest"_s, QLatin1StringView(rest.name)});
    return process;
}

void awaitRest(QProcess &process)
{
    if (!process.waitForReadyRead(idlePatience)) {
        qFatal("the application does not come to rest");
    }
}

void end(QProcess &process)
{
    process.terminate();
    process.waitForFinished(idlePatience);
}

/// What each thread has done in between.
QList<ThreadWork> difference(const QMap<int, ThreadWork> &before,
                             const QMap<int, ThreadWork> &after)
{
    QList<ThreadWork> work;
    for (auto thread = after.begin(); thread != after.end(); ++thread) {
        const ThreadWork earlier = before.value(thread.key());
        work.append({thread->name, thread->switches - earlier.switches,
                     thread->milliseconds - earlier.milliseconds});
    }
    return work;
}

QStringList cells(const ThreadWork &work)
{
    constexpr std::chrono::duration<double> seconds = duration;
    return {Table::number(static_cast<double>(work.switches) / seconds.count()),
            Table::number(work.milliseconds)};
}

void print(const Table &table, const Rest &rest, const QList<ThreadWork> &threads)
{
    ThreadWork all;
    for (const ThreadWork &thread : threads) {
        all.switches += thread.switches;
        all.milliseconds += thread.milliseconds;
    }
    table.row(QLatin1StringView(rest.name),
              cells(all) + QStringList{Table::number(rest.hasCursor ? blinks : 0)});
    for (const ThreadWork &thread : threads) {
        if (thread.switches > 0) {
            table.row("    thread "_L1 + thread.name, cells(thread));
        }
    }
}

} // namespace

void rest(const QStringList &arguments)
{
    for (const Rest &rest : allRests()) {
        if (arguments.value(0) == QLatin1StringView(rest.name)) {
            Renderer::choose();
            Stage stage(rest.isSignedIn);
            rest.reach(stage);
            std::puts("at rest");
            std::fflush(stdout);
            QCoreApplication::exec();
        }
    }
}

void measureIdle(const QStringList &)
{
    const std::vector<Rest> rests = allRests();
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const Rest &rest : rests) {
        processes.push_back(start(rest));
        awaitRest(*processes.back());
    }
    const auto threads = [&processes] {
        std::vector<QMap<int, ThreadWork>> all;
        all.reserve(processes.size());
        for (const auto &process : processes) {
            all.push_back(threadsOf(process->processId()));
        }
        return all;
    };
    std::this_thread::sleep_for(settling);
    const auto before = threads();
    std::this_thread::sleep_for(duration);
    const auto after = threads();
    const Table table(
        u"At rest for %1 s: wake-ups a second, and milliseconds of the processor"_s.arg(
            duration.count()),
        {u"wake-ups"_s, u"ms"_s, u"limit"_s});
    for (size_t i = 0; i < rests.size(); ++i) {
        print(table, rests[i], difference(before[i], after[i]));
        end(*processes[i]);
    }
}
