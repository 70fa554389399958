// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWindow;

/// Keeps a held key from acting on what it was not pressed for, and Return and Escape from acting
/// again and again: through an alert, what is below it and the alert that comes of that. In text of
/// several lines Return repeats.
class KeyRepeatFilter : public QObject {
    Q_OBJECT

public:
    /// Filters what `window` is sent from now on.
    explicit KeyRepeatFilter(QWindow &window);

    bool eventFilter(QObject *window, QEvent *event) override;

private:
    int m_key = 0; // that is held; 0 for none, or when something else took its press
    bool m_beganInLines = false; // the key held was pressed in text of several lines
};
