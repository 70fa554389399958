// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QKeyEvent;
class QWindow;

/// Ignores the repeats of a held key whose press did not come through this window, because a menu
/// took it for instance, and all repeats of Return, Escape and Back, which would go through one
/// alert after another. In text of several lines Return repeats.
class KeyRepeatFilter : public QObject {
    Q_OBJECT

public:
    /// Filters the events of `window` from now on.
    explicit KeyRepeatFilter(QWindow &window);

    bool eventFilter(QObject *window, QEvent *event) override;

private:
    void followPress(const QKeyEvent &event);
    [[nodiscard]] bool ignoresRepeat(const QKeyEvent &event) const;

    int m_key = 0; // that is held; 0 for none, or when its press was not seen
    bool m_beganInLines = false; // the key held was pressed in text of several lines
};
