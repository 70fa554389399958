// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/UIColorEx.h"

#include "platform/uikit/base/UIApplication.h"

UIColor UIColorEx::tintColor()
{
    if (!UIApplication::sharedApplication()->traits().systemVersionIsAtLeast(13)) {
        return UIColor::systemBlueColor();
    }
    return UIColor::initWithDynamicProvider([](const UITraitCollection &traits) {
        return traits.userInterfaceStyle == UIUserInterfaceStyle::Dark ? UIColor::systemTealColor()
                                                                       : UIColor::systemBlueColor();
    });
}
