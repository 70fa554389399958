// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Figures.h"
#include "bench/FrameClock.h"
#include "bench/Measurements.h"
#include "bench/Scenes.h"
#include "bench/floors/BareWindow.h"

#include <QQuickView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int frameRounds = 3;
/// A frame that takes longer is seen to come late.
constexpr double aim = 33;
constexpr double shares[] = {0.5, 0.95, 1};

struct Sample {
    QList<double> frames;
    std::chrono::milliseconds time{};
};

Sample play(const Scene &scene, Stage &stage)
{
    FrameClock clock(stage.view());
    Sample sample;
    for (int round = 0; round < frameRounds; ++round) {
        scene.prepare(stage);
        clock.start();
        sample.time +=
            std::chrono::milliseconds(static_cast<qint64>(timed([&] { scene.play(stage); })));
        sample.frames += clock.frames();
        scene.leave(stage);
    }
    return sample;
}

QList<double> floorOf(std::chrono::milliseconds time)
{
    QQuickView view;
    fillBareWindow(view);
    view.show();
    FrameClock clock(view);
    Stage::wait(std::chrono::milliseconds(200));
    clock.start();
    Stage::wait(time);
    return clock.frames();
}

QStringList cells(const QList<double> &frames, const QList<double> &floor)
{
    QStringList cells{QString::number(frames.size())};
    for (const auto &of : {frames, floor}) {
        for (const double share : shares) {
            cells.append(Table::number(quantile(of, share)));
        }
    }
    for (const double share : shares) {
        cells.append(Table::number(quantile(frames, share) / quantile(floor, share)));
    }
    const auto late =
        std::count_if(frames.begin(), frames.end(), [](double time) { return time > aim; });
    if (late > 0) {
        cells.append(u"  <- %1 over %2 ms"_s.arg(late).arg(aim));
    }
    return cells;
}

} // namespace

void measureFrames(const QStringList &)
{
    const Table table(
        u"Work for one frame at 390x844, in ms, the first time included, beside that of an empty "
        "window in which a rectangle of its size moves for as long"_s,
        {u""_s, u""_s, u"figure"_s, u""_s, u""_s, u"floor"_s, u""_s, u""_s, u"times"_s});
    table.row({},
              {u"frames"_s, u"p50"_s, u"p95"_s, u"max"_s, u"p50"_s, u"p95"_s, u"max"_s, u"p50"_s,
               u"p95"_s, u"max"_s});
    Stage stage;
    for (const Scene &scene : allScenes()) {
        const Sample sample = play(scene, stage);
        table.row(QLatin1StringView(scene.name), cells(sample.frames, floorOf(sample.time)));
    }
}
