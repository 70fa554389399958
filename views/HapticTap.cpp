// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/HapticTap.h"

#include "platform/uikit/base/UIImpactFeedbackGenerator.h"

void tapHaptically()
{
    UIImpactFeedbackGenerator(UIImpactFeedbackStyle::Light).impactOccurred();
}
