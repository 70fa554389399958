// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/UINavigationController.h"

#include "platform/uikit/bars/UINavigationItem.h"

namespace {

using Cover = TransitionStack::Cover;
using Motion = TransitionStack::Motion;

} // namespace

UINavigationController::UINavigationController(std::shared_ptr<UIViewController> rootViewController)
{
    connect(&m_pages, &TransitionStack::topChanged, this,
            &UINavigationController::topViewControllerChanged);
    pushViewController(std::move(rootViewController), false);
}

UINavigationController::~UINavigationController() = default;

std::vector<std::shared_ptr<UIViewController>> UINavigationController::viewControllers() const
{
    return m_pages.controllers();
}

void UINavigationController::pushViewController(std::shared_ptr<UIViewController> controller,
                                                bool animated)
{
    if (!controller) {
        return;
    }
    adopt(*controller);
    m_pages.push(std::move(controller), Cover::Covers,
                 animated ? Motion::Animated : Motion::Immediate);
}

void UINavigationController::popViewControllerAnimated(bool animated)
{
    if (canGoBack()) {
        m_pages.remove(m_pages.top(), animated ? Motion::Animated : Motion::Immediate);
    }
}

void UINavigationController::popToRootViewControllerAnimated(bool animated)
{
    const auto pages = m_pages.controllers();
    m_pages.removeAbove(pages.front().get(), animated ? Motion::Animated : Motion::Immediate);
}

bool UINavigationController::canGoBack() const
{
    return m_pages.below(m_pages.top()) != nullptr;
}

QString UINavigationController::backTitle() const
{
    const UIViewController *previous = m_pages.below(m_pages.top());
    return previous ? previous->navigationItem()->title() : QString();
}

bool UINavigationController::goBack()
{
    const bool can = canGoBack() && !topViewController()->navigationItem()->leftBarButtonItem();
    if (can) {
        popViewControllerAnimated(true);
    }
    return can;
}

bool UINavigationController::escape()
{
    const UIViewController *page = topViewController();
    UIBarButtonItem *left = page->navigationItem()->leftBarButtonItem();
    if (!left) {
        return goBack();
    }
    const bool leaves =
        left->isSystemItem(UIBarButtonSystemItem::Cancel) && !page->isModalInPresentation();
    if (leaves) {
        left->trigger();
    }
    return leaves;
}

void UINavigationController::appearanceStateDidChange(TransitionStack::Motion motion)
{
    m_pages.setLimit(appearanceState(), motion);
}
