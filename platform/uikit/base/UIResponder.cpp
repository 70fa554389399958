// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/base/UIResponder.h"

#include "platform/uikit/base/UIApplication.h"

bool UIResponder::isFirstResponder() const
{
    const UIApplication *application = UIApplication::sharedApplication();
    return application && application->firstResponder() == this;
}

bool UIResponder::becomeFirstResponder()
{
    if (canBecomeFirstResponder()) {
        moveFirstResponder(this);
    }
    return isFirstResponder();
}

bool UIResponder::resignFirstResponder()
{
    if (isFirstResponder()) {
        moveFirstResponder(nullptr);
    }
    return !isFirstResponder();
}

void UIResponder::moveFirstResponder(UIResponder *to)
{
    UIApplication *application = UIApplication::sharedApplication();
    if (!application || application->m_firstResponder == to) {
        return;
    }
    const QPointer<UIResponder> from = std::exchange(application->m_firstResponder, to);
    for (const QPointer<UIResponder> &responder : {from, QPointer<UIResponder>(to)}) {
        // The one that lost the keyboard may have moved it on.
        if (!responder || (responder == to && !to->isFirstResponder())) {
            continue;
        }
        responder->firstResponderDidChange();
        if (responder) {
            Q_EMIT responder->firstResponderChanged();
        }
    }
}
