// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/CardStyle.h"

#include "platform/uikit/base/UIApplication.h"
#include "platform/uikit/base/UIView.h"
#include "views/AdaptiveColors.h"

void styleCard(UIView &view, double cornerRadius)
{
    const bool hasCurves = UIApplication::sharedApplication()->traits().systemVersionIsAtLeast(13);
    view.setBackgroundColor(AdaptiveColors::cardBackground());
    view.setLayer({.cornerRadius = cornerRadius,
                   .masksToBounds = true,
                   .cornerCurve = hasCurves ? CALayer::CornerCurve::Continuous
                                            : CALayer::CornerCurve::Circular});
}
