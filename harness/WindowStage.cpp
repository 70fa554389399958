// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/WindowStage.h"

#include "platform/uikit/presentation/UIViewController.h"

#include <QCoreApplication>
#include <QEvent>

WindowStage::~WindowStage()
{
    close();
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowStage::show(const std::shared_ptr<UIViewController> &root,
                       const std::shared_ptr<UIViewController> &presented, const QSize &size)
{
    window->makeKeyAndVisible();
    window->setRootViewController(root);
    if (presented) {
        root->presentViewController(presented, false);
    }
    open(*window, size, m_appearance);
}
