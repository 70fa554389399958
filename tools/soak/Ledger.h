// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// The sum of the journals of many lives on one home folder. A line of a journal is one of
///
///     found USER          signed in at the start; "-" for nobody
///     may USER            about to be kept for the next start
///     is USER             kept: the next start must find it
///     submits TITLE       a report goes out
///     told TITLE          the user was told that it is sent
///     missing             an awaited event has not come
///     asks N, answered N  a request, and its completion
///     home OBJECTS KIB    live objects, and the memory, while only Home is in sight
class Ledger {
public:
    enum class End { InOrder, Killed, Crashed };

    void begin();
    void take(const QByteArray &line);
    /// `isDamaged`: its start has found a file that could not be read.
    void end(End end, bool isDamaged);

    /// Whether each row of the table has something to show.
    [[nodiscard]] bool hasTriedAll() const;

    /// Prints the table, when the service has reports of these titles. Returns whether all is as
    /// it should be.
    [[nodiscard]] bool print(const QStringList &stored) const;

private:
    using Counts = QHash<QString, int>;
    struct Growth {
        QList<qint64> values; // of the last life
        [[nodiscard]] qint64 begin() const;
        [[nodiscard]] qint64 end() const;
        [[nodiscard]] bool isBelow(int percent) const;
    };

    /// How many there are of each beyond those in `others`.
    [[nodiscard]] static int beyond(const Counts &counts, const Counts &others);

    int m_lives = 0;
    int m_changes = 0;
    int m_torn = 0;
    int m_requests = 0;
    int m_missing = 0;
    int m_crashes = 0;
    bool m_isTorn = false;
    QSet<QByteArray> m_kept{"-"}; // a start may find one of these
    QSet<QByteArray> m_pending;
    Counts m_submitted;
    Counts m_told;
    Growth m_objects;
    Growth m_memory;
};
