// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

/// What a thread has done so far.
struct ThreadWork {
    QString name;
    /// How often it stopped running, of itself or not: at rest, how often it woke.
    qint64 switches = 0;
    double milliseconds = 0;
};

/// The threads of a process, by their numbers.
[[nodiscard]] QMap<int, ThreadWork> threadsOf(qint64 pid);
