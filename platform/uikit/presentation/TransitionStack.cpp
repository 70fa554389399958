// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/TransitionStack.h"

#include "platform/uikit/presentation/UIViewController.h"

#include <algorithm>

// Controllers that leave together, and what runs when the last of them has gone.
struct TransitionStack::Departure {
    int remaining = 0;
    Completion completion;
};

struct TransitionStack::Entry {
    std::shared_ptr<UIViewController> controller;
    Cover cover = Cover::Covers;
    Motion motion = Motion::Immediate;
    Phase phase = Phase::Entering;
    Completion entered;
    std::shared_ptr<Departure> departure;
};

// One change of one controller's appearance that is due.
struct TransitionStack::Step {
    std::shared_ptr<UIViewController> controller;
    void (*run)(UIViewController &, Motion) = nullptr;
};

TransitionStack::TransitionStack() = default;
TransitionStack::~TransitionStack() = default;

void TransitionStack::push(std::shared_ptr<UIViewController> controller, Cover cover, Motion motion,
                           Completion completion)
{
    if (!controller || indexOf(controller.get()) >= 0) {
        if (completion) {
            completion();
        }
        return;
    }
    controller->m_stack = this;
    const UIViewController *pushed = controller.get();
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_entries.push_back(
        {std::move(controller), cover, motion, Phase::Entering, std::move(completion), {}});
    endInsertRows();
    announce();
    reconcile(motion);
    if (!isDrawn(motion)) {
        settle(pushed);
    }
}

void TransitionStack::remove(const UIViewController *controller, Motion motion,
                             Completion completion)
{
    const int index = indexOf(controller);
    leaveFrom(index < 0 ? rowCount() : index, motion, std::move(completion));
}

void TransitionStack::removeAbove(const UIViewController *controller, Motion motion,
                                  Completion completion)
{
    const int index = indexOf(controller);
    leaveFrom(index < 0 ? rowCount() : index + 1, motion, std::move(completion));
}

void TransitionStack::leaveFrom(int index, Motion motion, Completion completion)
{
    const auto departure = std::make_shared<Departure>();
    std::vector<std::shared_ptr<UIViewController>> leaving;
    for (int i = index; i < rowCount(); ++i) {
        Entry &entry = m_entries[static_cast<std::size_t>(i)];
        if (entry.phase == Phase::Leaving) {
            continue;
        }
        entry.phase = Phase::Leaving;
        entry.motion = motion;
        entry.departure = departure;
        leaving.push_back(entry.controller);
    }
    if (leaving.empty()) {
        if (completion) {
            completion();
        }
        return;
    }
    departure->remaining = static_cast<int>(leaving.size());
    departure->completion = std::move(completion);
    announce();
    reconcile(motion);
    if (!isDrawn(motion)) {
        for (const auto &controller : leaving) {
            settle(controller.get());
        }
    }
}

bool TransitionStack::contains(const UIViewController *controller) const
{
    const int index = indexOf(controller);
    return index >= 0 && m_entries[static_cast<std::size_t>(index)].phase != Phase::Leaving;
}

UIViewController *TransitionStack::top() const
{
    return nearest(rowCount() - 1, -1);
}

UIViewController *TransitionStack::above(const UIViewController *controller) const
{
    const int index = indexOf(controller);
    return index < 0 ? nullptr : nearest(index + 1, 1);
}

UIViewController *TransitionStack::below(const UIViewController *controller) const
{
    return nearest(indexOf(controller) - 1, -1);
}

std::vector<std::shared_ptr<UIViewController>> TransitionStack::controllers() const
{
    std::vector<std::shared_ptr<UIViewController>> result;
    for (const Entry &entry : m_entries) {
        if (entry.phase != Phase::Leaving) {
            result.push_back(entry.controller);
        }
    }
    return result;
}

void TransitionStack::setLimit(AppearanceState limit, Motion motion)
{
    m_limit = limit;
    reconcile(motion);
}

void TransitionStack::attachView()
{
    ++m_views;
}

void TransitionStack::detachView()
{
    --m_views;
    const auto entries = m_entries; // completions may change the stack
    for (const Entry &entry : entries) {
        if (m_views == 0) {
            settle(entry.controller.get());
        }
    }
}

void TransitionStack::transitionEnded(UIViewController *controller)
{
    settle(controller);
}

int TransitionStack::indexOf(const UIViewController *controller) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
        return entry.controller.get() == controller;
    });
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

UIViewController *TransitionStack::nearest(int from, int direction) const
{
    for (int i = from; i >= 0 && i < rowCount(); i += direction) {
        const Entry &entry = m_entries[static_cast<std::size_t>(i)];
        if (entry.phase != Phase::Leaving) {
            return entry.controller.get();
        }
    }
    return nullptr;
}

bool TransitionStack::isDrawn(Motion motion) const
{
    return m_views > 0 && motion == Motion::Animated;
}

void TransitionStack::settle(const UIViewController *controller)
{
    const int index = indexOf(controller);
    if (index < 0) {
        return;
    }
    switch (m_entries[static_cast<std::size_t>(index)].phase) {
    case Phase::Entering:
        finishEntering(index);
        break;
    case Phase::Settled:
        break;
    case Phase::Leaving:
        finishLeaving(index);
        break;
    }
}

void TransitionStack::finishEntering(int index)
{
    Entry &entry = m_entries[static_cast<std::size_t>(index)];
    entry.phase = Phase::Settled;
    const Motion motion = entry.motion;
    const Completion entered = std::move(entry.entered);
    announce();
    reconcile(motion);
    if (entered) {
        entered();
    }
}

void TransitionStack::finishLeaving(int index)
{
    beginRemoveRows({}, index, index);
    const Entry entry = std::move(m_entries[static_cast<std::size_t>(index)]);
    m_entries.erase(m_entries.begin() + index);
    endRemoveRows();
    UIViewController::disappear(*entry.controller, entry.motion);
    entry.controller->m_stack = nullptr;
    entry.controller->m_parent = nullptr;
    announce();
    reconcile(entry.motion);
    // An entry that was interrupted has not been announced yet.
    if (entry.entered) {
        entry.entered();
    }
    if (--entry.departure->remaining == 0 && entry.departure->completion) {
        entry.departure->completion();
    }
    if (!entry.controller->m_stack) { // or it has come again since
        entry.controller->viewDidLeave();
    }
}

// How far the controller at `index` is to come, given what is above it.
AppearanceState TransitionStack::goal(int index) const
{
    const Entry &entry = m_entries[static_cast<std::size_t>(index)];
    if (entry.phase == Phase::Leaving) {
        return AppearanceState::Disappeared;
    }
    bool settled = entry.phase == Phase::Settled;
    for (int i = index + 1; i < rowCount(); ++i) {
        const Entry &higher = m_entries[static_cast<std::size_t>(i)];
        if (higher.cover == Cover::Overlays) {
            continue;
        }
        if (higher.phase != Phase::Leaving) {
            return AppearanceState::Disappeared;
        }
        settled = false;
    }
    return std::min(m_limit, settled ? AppearanceState::Appeared : AppearanceState::Appearing);
}

TransitionStack::Step TransitionStack::nextStep() const
{
    struct Rule {
        AppearanceState from;
        bool (*applies)(AppearanceState goal);
        void (*run)(UIViewController &, Motion);
    };
    using enum AppearanceState;
    constexpr auto isHidden = [](AppearanceState goal) { return goal == Disappeared; };
    constexpr auto isShown = [](AppearanceState goal) { return goal != Disappeared; };
    constexpr auto isSettled = [](AppearanceState goal) { return goal == Appeared; };
    // What goes, goes first; what comes, begins before anything ends.
    static constexpr Rule rules[] = {
        {Appearing, isHidden, &UIViewController::disappear},
        {Appeared, isHidden, &UIViewController::disappear},
        {Disappeared, isShown, &UIViewController::beginAppearance},
        {Appearing, isSettled, &UIViewController::endAppearance},
    };
    for (const Rule &rule : rules) {
        for (int i = 0; i < rowCount(); ++i) {
            const auto &controller = m_entries[static_cast<std::size_t>(i)].controller;
            if (controller->appearanceState() == rule.from && rule.applies(goal(i))) {
                return {controller, rule.run};
            }
        }
    }
    return {};
}

// Brings every controller to its goal. Each step may change the stack, so each is found anew.
void TransitionStack::reconcile(Motion motion)
{
    for (Step step = nextStep(); step.controller; step = nextStep()) {
        step.run(*step.controller, motion);
    }
}

void TransitionStack::announce()
{
    if (!m_entries.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
    const UIViewController *now = top();
    if (std::exchange(m_announcedTop, now) != now) {
        Q_EMIT topChanged();
    }
}

bool TransitionStack::isBlocked(int index) const
{
    return nearest(index + 1, 1) != nullptr;
}

bool TransitionStack::isConcealed(int index) const
{
    return std::any_of(m_entries.begin() + index + 1, m_entries.end(), [](const Entry &higher) {
        return higher.cover == Cover::Covers && higher.phase == Phase::Settled;
    });
}

int TransitionStack::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant TransitionStack::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Entry &entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case ControllerRole:
        return QVariant::fromValue(entry.controller.get());
    case PhaseRole:
        return QVariant::fromValue(entry.phase);
    case AnimatedRole:
        return entry.motion == Motion::Animated;
    case BlockedRole:
        return isBlocked(index.row());
    case ConcealedRole:
        return isConcealed(index.row());
    case OverlayRole:
        return entry.cover == Cover::Overlays;
    default:
        return {};
    }
}

QHash<int, QByteArray> TransitionStack::roleNames() const
{
    return {{ControllerRole, "controller"}, {PhaseRole, "phase"},
            {AnimatedRole, "animated"},     {BlockedRole, "blocked"},
            {ConcealedRole, "concealed"},   {OverlayRole, "overlay"}};
}
