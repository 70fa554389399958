// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/Finger.h"

#include <QPointingDevice>
#include <QQuickWindow>
#include <QTest>

QPointingDevice *Finger::screen()
{
    static QPointingDevice *const screen = QTest::createTouchDevice();
    return screen;
}

Finger::Finger(QQuickWindow &window, const QPoint &at) : m_window(window), m_at(at)
{
    QTest::touchEvent(&window, screen()).press(0, at, &window);
}

void Finger::move(const QPoint &to)
{
    const QPoint from = m_at;
    const int steps = qMax(1, (to - from).manhattanLength() / 12);
    for (int step = 1; step <= steps; ++step) {
        m_at = from + (to - from) * step / steps;
        QTest::qWait(5);
        QTest::touchEvent(&m_window, screen()).move(0, m_at, &m_window);
        m_window.grabWindow(); // moves are delivered with a frame
    }
}

void Finger::lift()
{
    QTest::touchEvent(&m_window, screen()).release(0, m_at, &m_window);
}
