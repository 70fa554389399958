// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/StageBook.h"

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

void StageBook::stage(const QByteArray &path, const Fault &fault, int count)
{
    const std::lock_guard lock(m_mutex);
    if (count != 0) {
        m_faults.push_back({path, fault, count});
    }
}

void StageBook::receive(Reception reception, int count)
{
    const std::lock_guard lock(m_mutex);
    if (count != 0) {
        m_receptions.push_back({reception, count});
    }
}

void StageBook::clear()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
    m_receptions.clear();
}

std::optional<Fault> StageBook::takeFault(const QByteArray &path)
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

Reception StageBook::takeReception()
{
    const std::lock_guard lock(m_mutex);
    if (m_receptions.empty()) {
        return Reception::Normal;
    }
    const Reception reception = m_receptions.front().reception;
    useUp(m_receptions, m_receptions.begin());
    return reception;
}

} // namespace sandbox
