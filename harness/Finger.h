// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

class QPointingDevice;
class QQuickWindow;

/// A finger on a window from when it is made to when it is lifted.
class Finger {
public:
    /// The touch screen of all fingers.
    [[nodiscard]] static QPointingDevice *screen();

    Finger(QQuickWindow &window, const QPoint &at);
    /// Moves there in small steps, each seen in a frame of its own.
    void move(const QPoint &to);
    void lift();
    [[nodiscard]] QPoint at() const { return m_at; }

private:
    QQuickWindow &m_window;
    QPoint m_at;
};
