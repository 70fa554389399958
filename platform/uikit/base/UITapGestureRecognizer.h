// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/TargetAction.h"

/// Recognises a single tap on the view that it is added to. It never takes the touch from the
/// controls inside the view, and leaves taps on text fields to them.
class UITapGestureRecognizer {
public:
    template <typename Target, typename Method>
    UITapGestureRecognizer(Target *target, Method action)
        : m_action(new MethodAction<UITapGestureRecognizer, Target, Method>(target, action))
    {
    }

    /// Sends the action.
    void recognize() { m_action->send(this); }

private:
    std::unique_ptr<const TargetAction<UITapGestureRecognizer>> m_action;
};
