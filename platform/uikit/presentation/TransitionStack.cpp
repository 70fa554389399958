// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/TransitionStack.h"

#include "platform/uikit/presentation/UIViewController.h"

#include <algorithm>

/// One change of one controller's appearance that is due.
struct TransitionStack::Step {
    std::shared_ptr<UIViewController> controller = {};
    void (*run)(UIViewController &, Motion) = nullptr;
};

/// When a controller whose appearance is `from` is due for a step.
struct TransitionStack::Rule {
    AppearanceState from;
    bool (*applies)(AppearanceState goal);
    void (*run)(UIViewController &, Motion);
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
    append({.controller = std::move(controller),
            .cover = cover,
            .motion = motion,
            .entered = std::move(completion)});
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
    const auto leaving = startLeaving(index, motion, departure);
    if (leaving.empty()) {
        if (completion) {
            completion();
        }
        return;
    }
    departure->remaining = static_cast<int>(leaving.size());
    departure->completion = std::move(completion);
    announceChange();
    reconcile(motion);
    if (!isDrawn(motion)) {
        for (const auto &controller : leaving) {
            settle(controller.get());
        }
    }
}

std::vector<std::shared_ptr<UIViewController>>
TransitionStack::startLeaving(int index, Motion motion, const std::shared_ptr<Departure> &departure)
{
    std::vector<std::shared_ptr<UIViewController>> leaving;
    for (int i = index; i < rowCount(); ++i) {
        Entry &row = entry(i);
        if (row.phase == Phase::Leaving) {
            continue;
        }
        row.phase = Phase::Leaving;
        row.motion = motion;
        row.departure = departure;
        leaving.push_back(row.controller);
    }
    return leaving;
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
    const auto before = entries(); // completions may change the stack
    for (const Entry &row : before) {
        if (m_views == 0) {
            settle(row.controller.get());
        }
    }
}

void TransitionStack::transitionEnded(UIViewController *controller)
{
    settle(controller);
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
    switch (entry(index).phase) {
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
    Entry &row = entry(index);
    row.phase = Phase::Settled;
    const Motion motion = row.motion;
    const Completion entered = std::move(row.entered);
    announceChange();
    reconcile(motion);
    if (entered) {
        entered();
    }
}

void TransitionStack::finishLeaving(int index)
{
    const Entry gone = take(index);
    UIViewController::disappear(*gone.controller, gone.motion);
    gone.controller->m_stack = nullptr;
    gone.controller->m_parent = nullptr;
    announceChange();
    reconcile(gone.motion);
    // The completion of an entering that was interrupted has not run yet.
    if (gone.entered) {
        gone.entered();
    }
    if (--gone.departure->remaining == 0 && gone.departure->completion) {
        gone.departure->completion();
    }
    if (!gone.controller->m_stack) { // or it has come again since
        gone.controller->viewDidLeave();
    }
}

// How far the controller at `index` is to come, given the controllers above it.
AppearanceState TransitionStack::goal(int index) const
{
    if (entry(index).phase == Phase::Leaving) {
        return AppearanceState::Disappeared;
    }
    bool settled = entry(index).phase == Phase::Settled;
    for (int i = index + 1; i < rowCount(); ++i) {
        const Entry &higher = entry(i);
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
    using enum AppearanceState;
    // Controllers that go, go first; then controllers that come begin before any of them ends.
    static constexpr Rule rules[] = {
        {Appearing, [](auto goal) { return goal == Disappeared; }, &UIViewController::disappear},
        {Appeared, [](auto goal) { return goal == Disappeared; }, &UIViewController::disappear},
        {Disappeared, [](auto goal) { return goal != Disappeared; },
         &UIViewController::beginAppearance},
        {Appearing, [](auto goal) { return goal == Appeared; }, &UIViewController::endAppearance},
    };
    for (const Rule &rule : rules) {
        for (int i = 0; i < rowCount(); ++i) {
            const auto &controller = entry(i).controller;
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
