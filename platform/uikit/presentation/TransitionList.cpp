// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/TransitionList.h"

#include "platform/uikit/presentation/UIViewController.h"

#include <algorithm>

TransitionList::TransitionList() = default;
TransitionList::~TransitionList() = default;

bool TransitionList::contains(const UIViewController *controller) const
{
    const int index = indexOf(controller);
    return index >= 0 && entry(index).phase != Phase::Leaving;
}

UIViewController *TransitionList::top() const
{
    return nearest(rowCount() - 1, -1);
}

UIViewController *TransitionList::above(const UIViewController *controller) const
{
    const int index = indexOf(controller);
    return index < 0 ? nullptr : nearest(index + 1, 1);
}

UIViewController *TransitionList::below(const UIViewController *controller) const
{
    return nearest(indexOf(controller) - 1, -1);
}

std::vector<std::shared_ptr<UIViewController>> TransitionList::controllers() const
{
    std::vector<std::shared_ptr<UIViewController>> result;
    for (const Entry &entry : m_entries) {
        if (entry.phase != Phase::Leaving) {
            result.push_back(entry.controller);
        }
    }
    return result;
}

int TransitionList::indexOf(const UIViewController *controller) const
{
    const auto found = std::ranges::find_if(
        m_entries, [&](const Entry &entry) { return entry.controller.get() == controller; });
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

void TransitionList::append(Entry entry)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_entries.push_back(std::move(entry));
    endInsertRows();
    announceChange();
}

TransitionList::Entry TransitionList::take(int index)
{
    beginRemoveRows({}, index, index);
    Entry taken = std::move(entry(index));
    m_entries.erase(m_entries.begin() + index);
    endRemoveRows();
    return taken;
}

void TransitionList::announceChange()
{
    if (!m_entries.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
    const UIViewController *now = top();
    if (std::exchange(m_announcedTop, now) != now) {
        Q_EMIT topChanged();
    }
}

UIViewController *TransitionList::nearest(int from, int direction) const
{
    for (int i = from; i >= 0 && i < rowCount(); i += direction) {
        if (entry(i).phase != Phase::Leaving) {
            return entry(i).controller.get();
        }
    }
    return nullptr;
}

bool TransitionList::isBlocked(int index) const
{
    return nearest(index + 1, 1) != nullptr;
}

bool TransitionList::isConcealed(int index) const
{
    return std::any_of(m_entries.begin() + index + 1, m_entries.end(), [](const Entry &higher) {
        return higher.cover == Cover::Covers && higher.phase == Phase::Settled;
    });
}

int TransitionList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant TransitionList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Entry &row = entry(index.row());
    switch (role) {
    case ControllerRole:
        return QVariant::fromValue(row.controller.get());
    case PhaseRole:
        return QVariant::fromValue(row.phase);
    case AnimatedRole:
        return row.motion == Motion::Animated;
    case BlockedRole:
        return isBlocked(index.row());
    case ConcealedRole:
        return isConcealed(index.row());
    case OverlayRole:
        return row.cover == Cover::Overlays;
    default:
        return {};
    }
}

QHash<int, QByteArray> TransitionList::roleNames() const
{
    return {{ControllerRole, "controller"}, {PhaseRole, "phase"},
            {AnimatedRole, "animated"},     {BlockedRole, "blocked"},
            {ConcealedRole, "concealed"},   {OverlayRole, "overlay"}};
}
