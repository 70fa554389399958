// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/base/UIImpactFeedbackGenerator.h"

#include "platform/uikit/base/UIApplication.h"

void UIImpactFeedbackGenerator::impactOccurred() const
{
    if (const UIApplication *application = UIApplication::sharedApplication()) {
        application->host().impactOccurred(m_style);
    }
}
