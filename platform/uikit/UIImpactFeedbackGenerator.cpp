// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIImpactFeedbackGenerator.h"

#include "platform/uikit/UIApplication.h"

void UIImpactFeedbackGenerator::impactOccurred() const
{
    if (const UIApplication *application = UIApplication::sharedApplication()) {
        application->host().impactOccurred(m_style);
    }
}
