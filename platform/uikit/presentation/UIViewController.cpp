// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/UIViewController.h"

#include "platform/uikit/bars/UINavigationItem.h"
#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/base/ViewUrl.h"
#include "platform/uikit/presentation/UINavigationController.h"

namespace {

TransitionStack::Motion motionIf(bool animated)
{
    return animated ? TransitionStack::Motion::Animated : TransitionStack::Motion::Immediate;
}

} // namespace

UIViewController::UIViewController() : m_navigationItem(std::make_unique<UINavigationItem>()) {}

UIViewController::~UIViewController() = default;

void UIViewController::setTabBarItem(std::unique_ptr<UITabBarItem> item)
{
    m_tabBarItem = std::move(item);
}

QUrl UIViewController::viewUrl() const
{
    return viewUrlOf(*this);
}

void UIViewController::loadViewIfNeeded()
{
    if (!std::exchange(m_viewLoaded, true)) {
        viewDidLoad();
    }
}

void UIViewController::viewDidLoad() {}
void UIViewController::viewWillAppear(bool) {}
void UIViewController::viewDidAppear(bool) {}
void UIViewController::viewDidLeave() {}
void UIViewController::appearanceStateDidChange(TransitionStack::Motion) {}

TransitionStack::Cover UIViewController::cover() const
{
    return TransitionStack::Cover::Covers;
}

const UIViewController *UIViewController::presentedEntry() const
{
    const UIViewController *controller = this;
    while (controller->m_parent) {
        // A page that leaves takes the controllers inside it along.
        if (controller->m_stack && !controller->m_stack->contains(controller)) {
            return nullptr;
        }
        controller = controller->m_parent;
    }
    const bool present = controller->m_stack && controller->m_stack->contains(controller);
    return present ? controller : nullptr;
}

void UIViewController::presentViewController(std::shared_ptr<UIViewController> controller,
                                             bool animated, Completion completion)
{
    const UIViewController *entry = presentedEntry();
    if (entry && controller) {
        const auto cover = controller->cover();
        entry->m_stack->push(std::move(controller), cover, motionIf(animated),
                             std::move(completion));
    } else if (completion) {
        completion();
    }
}

void UIViewController::dismissViewControllerAnimated(bool animated, Completion completion)
{
    const UIViewController *entry = presentedEntry();
    if (entry && entry->m_stack->above(entry)) {
        entry->m_stack->removeAbove(entry, motionIf(animated), std::move(completion));
    } else if (entry && entry->m_stack->below(entry)) {
        entry->m_stack->remove(entry, motionIf(animated), std::move(completion));
    } else if (completion) {
        completion();
    }
}

UIViewController *UIViewController::presentingViewController() const
{
    const UIViewController *entry = presentedEntry();
    return entry ? entry->m_stack->below(entry) : nullptr;
}

bool UIViewController::isOnTop() const
{
    const UIViewController *entry = presentedEntry();
    return entry && entry->m_stack->top() == entry;
}

void UIViewController::showViewController(std::shared_ptr<UIViewController> controller)
{
    if (UINavigationController *navigation = navigationController()) {
        navigation->pushViewController(std::move(controller), true);
    } else {
        presentViewController(std::move(controller), true);
    }
}

UINavigationController *UIViewController::navigationController() const
{
    for (UIViewController *parent = m_parent; parent; parent = parent->m_parent) {
        if (auto *navigation = qobject_cast<UINavigationController *>(parent)) {
            return navigation;
        }
    }
    return nullptr;
}

void UIViewController::beginAppearance(UIViewController &controller, TransitionStack::Motion motion)
{
    if (controller.m_appearance != AppearanceState::Disappeared) {
        return;
    }
    controller.loadViewIfNeeded();
    controller.m_appearance = AppearanceState::Appearing;
    controller.viewWillAppear(motion == TransitionStack::Motion::Animated);
    controller.appearanceStateDidChange(motion);
}

void UIViewController::endAppearance(UIViewController &controller, TransitionStack::Motion motion)
{
    if (controller.m_appearance != AppearanceState::Appearing) {
        return;
    }
    controller.m_appearance = AppearanceState::Appeared;
    controller.viewDidAppear(motion == TransitionStack::Motion::Animated);
    controller.appearanceStateDidChange(motion);
}

void UIViewController::disappear(UIViewController &controller, TransitionStack::Motion motion)
{
    if (controller.m_appearance == AppearanceState::Disappeared) {
        return;
    }
    controller.m_appearance = AppearanceState::Disappeared;
    controller.appearanceStateDidChange(motion);
}
