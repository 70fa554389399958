// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/UITabBarController.h"

#include "platform/uikit/bars/UITabBarItem.h"
#include "platform/uikit/base/ListProperty.h"
#include "platform/uikit/presentation/UINavigationController.h"

#include <utility>

namespace {

UITabBarItem *itemOf(const UIViewController &controller)
{
    if (controller.tabBarItem()) {
        return controller.tabBarItem();
    }
    const auto *navigation = qobject_cast<const UINavigationController *>(&controller);
    return navigation ? navigation->viewControllers().front()->tabBarItem() : nullptr;
}

} // namespace

UITabBarController::UITabBarController()
{
    connect(&m_tabBar, &UITabBar::itemChosen, this, &UITabBarController::itemChosen);
}

UITabBarController::~UITabBarController() = default;

void UITabBarController::setViewControllers(
    std::vector<std::shared_ptr<UIViewController>> controllers)
{
    m_viewControllers = std::move(controllers);
    std::vector<UITabBarItem *> items;
    for (const auto &controller : m_viewControllers) {
        adopt(*controller);
        items.push_back(itemOf(*controller));
    }
    m_tabBar.setSelectedIndex(0);
    m_tabBar.setItems(items);
    Q_EMIT viewControllersChanged();
    appearanceStateDidChange(TransitionStack::Motion::Immediate);
}

void UITabBarController::setSelectedIndex(int index)
{
    if (index == selectedIndex() || index < 0
        || std::cmp_greater_equal(index, m_viewControllers.size())) {
        return;
    }
    const auto shown = m_viewControllers[static_cast<std::size_t>(selectedIndex())];
    m_tabBar.setSelectedIndex(index);
    disappear(*shown, TransitionStack::Motion::Immediate);
    appearanceStateDidChange(TransitionStack::Motion::Immediate);
}

// The shown tab comes as far on screen as this controller has.
void UITabBarController::appearanceStateDidChange(TransitionStack::Motion motion)
{
    if (m_viewControllers.empty()) {
        return;
    }
    const auto shown = m_viewControllers[static_cast<std::size_t>(selectedIndex())];
    if (appearanceState() == AppearanceState::Disappeared) {
        disappear(*shown, motion);
    } else {
        beginAppearance(*shown, motion);
    }
    if (appearanceState() == AppearanceState::Appeared) {
        endAppearance(*shown, motion);
    }
}

void UITabBarController::itemChosen(int index)
{
    didSelectItem(m_tabBar.items()[static_cast<std::size_t>(index)]);
    if (index != selectedIndex()) {
        setSelectedIndex(index);
        return;
    }
    const auto &shown = m_viewControllers[static_cast<std::size_t>(index)];
    if (auto *navigation = qobject_cast<UINavigationController *>(shown.get())) {
        navigation->popToRootViewControllerAnimated(true);
    }
}

QQmlListProperty<UIViewController> UITabBarController::viewControllerList()
{
    return listProperty<UIViewController, &UITabBarController::m_viewControllers>(this);
}
