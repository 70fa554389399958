// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/StagedFaults.h"

#include <algorithm>

namespace sandbox {

namespace {

template <typename Entries>
void useUp(Entries &entries, typename Entries::iterator entry)
{
    if (entry->left > 0 && --entry->left == 0) {
        entries.erase(entry);
    }
}

} // namespace

void StagedFaults::stage(const QByteArray &path, const Fault &fault, int count)
{
    const std::lock_guard lock(m_mutex);
    if (count != 0) {
        m_faults.push_back({path, fault, count});
    }
}

void StagedFaults::stageConnection(ConnectionKind kind, int count)
{
    const std::lock_guard lock(m_mutex);
    if (count != 0) {
        m_connections.push_back({kind, count});
    }
}

void StagedFaults::clear()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
    m_connections.clear();
}

std::optional<Fault> StagedFaults::takeFault(const QByteArray &path)
{
    const std::lock_guard lock(m_mutex);
    const auto entry = std::find_if(m_faults.begin(), m_faults.end(), [&](const auto &each) {
        return each.path == path || each.path == "*";
    });
    if (entry == m_faults.end()) {
        return {};
    }
    Fault fault = entry->fault;
    useUp(m_faults, entry);
    return fault;
}

ConnectionKind StagedFaults::takeConnectionKind()
{
    const std::lock_guard lock(m_mutex);
    if (m_connections.empty()) {
        return ConnectionKind::Normal;
    }
    const ConnectionKind kind = m_connections.front().kind;
    useUp(m_connections, m_connections.begin());
    return kind;
}

} // namespace sandbox
