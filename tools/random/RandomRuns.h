// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestWindow.h"
#include "platform/uikit/input/HitTest.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <iterator>

/// Runs of random use, each of a seed of its own: as many as are asked for, from seed 1 on. With
/// WZT_RANDOM_SECONDS they go on for that long, with WZT_RANDOM_SEED they begin there.
namespace RandomRuns {

/// `run` returns its fault, empty for none. The first fault is the last run.
inline void each(quint32 count, const std::function<QString(quint32 seed)> &run)
{
    const int seconds = qEnvironmentVariableIntValue("WZT_RANDOM_SECONDS");
    const auto first = static_cast<quint32>(qEnvironmentVariableIntValue("WZT_RANDOM_SEED"));
    QElapsedTimer time;
    time.start();
    for (quint32 done = 0; seconds ? time.elapsed() < 1000LL * seconds : done < count; ++done) {
        const quint32 seed = qMax(first, 1U) + done;
        const QString fault = run(seed);
        if (!fault.isEmpty() || QTest::currentTestFailed()) {
            QFAIL(qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(fault)));
        }
    }
}

/// The choices of one run.
class Dice {
public:
    explicit Dice(quint32 seed) : m_generator(seed) {}

    /// From 0 to one less than `end`.
    int below(int end) { return m_generator.bounded(end); }
    int between(int first, int last) { return m_generator.bounded(first, last + 1); }
    /// One time in `times`.
    bool once(int times) { return below(times) == 0; }
    template <typename List>
    const auto &oneOf(const List &list)
    {
        return std::data(list)[below(static_cast<int>(std::ssize(list)))];
    }

private:
    QRandomGenerator m_generator;
};

/// The middle of something that takes presses, or anywhere else in the window.
inline QPoint placeIn(const QQuickView &view, Dice &dice)
{
    const QPoint any(dice.below(view.width()), dice.below(view.height()));
    const QQuickItem *item = HitTest::itemAt(view.contentItem(), any);
    const QPoint middle = item ? TestWindow::rect(item).center().toPoint() : any;
    return dice.once(2) && QRect(QPoint(), view.size()).contains(middle) ? middle : any;
}

} // namespace RandomRuns
