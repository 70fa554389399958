// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

#include <chrono>

class QQuickWindow;

/// Measures what each frame of a window costs: the processor time of the main thread from the end
/// of the frame before to the frame's own, in milliseconds. That is everything that stands between
/// a finger and a picture (events, bindings, rows that are made, polishing, painting), and what
/// else runs on the machine does not change it. For windows that the main thread draws.
class FrameClock : public QObject {
public:
    explicit FrameClock(QQuickWindow &window);

    /// Discards earlier frames and measures from here.
    void start();
    [[nodiscard]] const QList<double> &frames() const { return m_frames; }

private:
    QList<double> m_frames;
    std::chrono::nanoseconds m_last{};
};
