// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "screens/common/ContentType.h"

#include "platform/uikit/base/UIApplication.h"

UITextContentType contentTypeSince(double version, UITextContentType type)
{
    return UIApplication::sharedApplication()->traits().systemVersionIsAtLeast(version)
        ? type
        : UITextContentType::Unspecified;
}
