// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/presentation/UIWindow.h"

#include "platform/uikit/presentation/UIViewController.h"

UIWindow::UIWindow() = default;
UIWindow::~UIWindow() = default;

void UIWindow::makeKeyAndVisible()
{
    m_presentation.setLimit(AppearanceState::Appeared, TransitionStack::Motion::Immediate);
}

UIViewController *UIWindow::rootViewController() const
{
    const auto controllers = m_presentation.controllers();
    return controllers.empty() ? nullptr : controllers.front().get();
}

void UIWindow::setRootViewController(std::shared_ptr<UIViewController> controller)
{
    Q_ASSERT(!rootViewController());
    m_presentation.push(std::move(controller), TransitionStack::Cover::Covers,
                        TransitionStack::Motion::Immediate);
}
