// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/base/Host.h"

/// Haptic feedback of one style, felt where the machine can give it.
class UIImpactFeedbackGenerator {
public:
    explicit UIImpactFeedbackGenerator(UIImpactFeedbackStyle style) : m_style(style) {}

    /// One tap, at once.
    void impactOccurred() const;

private:
    UIImpactFeedbackStyle m_style;
};
