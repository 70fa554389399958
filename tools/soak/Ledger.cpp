// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/soak/Ledger.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

// The lowest of several values, because a pending reply holds its screen. The first quarter is left
// out: caches fill in it.
qint64 Ledger::Growth::begin() const
{
    const auto first = values.begin() + values.size() / 4;
    return *std::min_element(first, first + (values.size() + 3) / 4);
}

qint64 Ledger::Growth::end() const
{
    return *std::min_element(values.end() - (values.size() + 3) / 4, values.end());
}

bool Ledger::Growth::isBelow(int percent) const
{
    return values.size() > 1 && end() - begin() < begin() * percent / 100;
}

int Ledger::beyond(const Counts &counts, const Counts &others)
{
    int excess = 0;
    for (auto each = counts.begin(); each != counts.end(); ++each) {
        excess += std::max(0, each.value() - others.value(each.key()));
    }
    return excess;
}

void Ledger::begin()
{
    ++m_lives;
    m_isTorn = false;
    m_pending.clear();
    m_objects = m_memory = {};
}

void Ledger::take(const QByteArray &line)
{
    const qsizetype blank = line.indexOf(' ');
    const QByteArray event = line.left(blank);
    const QByteArray what = line.mid(blank + 1);
    if (event == "found") {
        m_isTorn = !m_kept.contains(what);
        m_kept = {what};
    } else if (event == "may") {
        ++m_changes;
        m_kept.insert(what);
    } else if (event == "is") {
        m_kept = {what};
    } else if (event == "submits") {
        ++m_submitted[QString::fromUtf8(what)];
    } else if (event == "told") {
        ++m_told[QString::fromUtf8(what)];
    } else if (event == "missing") {
        ++m_missing;
    } else if (event == "asks") {
        ++m_requests;
        m_pending.insert(what);
    } else if (event == "answered") {
        m_missing += m_pending.remove(what) ? 0 : 1; // a second answer is as wrong as none
    } else if (event == "home") {
        m_objects.values.append(what.split(' ').at(0).toLongLong());
        m_memory.values.append(what.split(' ').at(1).toLongLong());
    }
}

void Ledger::end(End end, bool isDamaged)
{
    m_torn += m_isTorn || isDamaged ? 1 : 0;
    m_missing += end == End::InOrder ? static_cast<int>(m_pending.size()) : 0;
    m_crashes += end == End::Crashed ? 1 : 0;
}

bool Ledger::hasTriedAll() const
{
    return m_changes > 0 && !m_told.isEmpty() && m_requests > 0 && m_objects.values.size() > 1;
}

bool Ledger::print(const QStringList &stored) const
{
    const auto total = [](const Counts &counts) {
        return std::accumulate(counts.begin(), counts.end(), 0);
    };
    const auto row = [](const char *name, int count, int all, const char *what) {
        std::printf("%-20s%8d  of %d %s\n", name, count, all, what);
        return count == 0 && all > 0; // where nothing was tried nothing was shown
    };
    const auto growthRow = [](const char *name, const Growth &growth, int percent) {
        if (growth.values.size() > 1) {
            std::printf("%-20s%8lld  at the end %lld\n", name, growth.begin(), growth.end());
        }
        return growth.isBelow(percent);
    };
    Counts inService;
    for (const QString &title : stored) {
        ++inService[title];
    }
    const bool isRight[] = {
        row("sessions torn", m_torn, m_changes, "changes"),
        row("reports lost", beyond(m_told, inService), total(m_told), "told as sent"),
        row("reports twice", beyond(inService, m_submitted), total(m_submitted), "submitted"),
        row("completions missing", m_missing, m_requests, "requests"),
        row("ended unasked", m_crashes, m_lives, "lives"),
        growthRow("memory, KiB", m_memory, 25),
        growthRow("live objects", m_objects, 25),
    };
    return std::ranges::all_of(isRight, [](bool right) { return right; });
}
