// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSMutableURLRequest.h"

NSMutableURLRequest NSMutableURLRequest::requestWithURL(const QByteArray &url)
{
    return NSMutableURLRequest(url);
}
