// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/AdaptiveColors.h"

#include "platform/uikit/base/UIApplication.h"

namespace {

UIColor choose(const UIColor &adaptive, const UIColor &fixed)
{
    return UIApplication::sharedApplication()->traits().systemVersionIsAtLeast(13) ? adaptive
                                                                                   : fixed;
}

} // namespace

UIColor AdaptiveColors::screenBackground()
{
    return choose(UIColor::systemGroupedBackgroundColor(),
                  UIColor::colorWithRed(0.949, 0.945, 0.965, 1.0));
}

UIColor AdaptiveColors::cardBackground()
{
    return choose(UIColor::secondarySystemGroupedBackgroundColor(), UIColor::whiteColor());
}

UIColor AdaptiveColors::text()
{
    return choose(UIColor::labelColor(), UIColor::blackColor());
}

UIColor AdaptiveColors::caption()
{
    return choose(UIColor::secondaryLabelColor(), UIColor::grayColor());
}

UIColor AdaptiveColors::placeholder()
{
    return choose(UIColor::tertiaryLabelColor(), UIColor::lightGrayColor());
}

UIColor AdaptiveColors::line()
{
    return choose(UIColor::separatorColor(), UIColor::grayColor());
}
