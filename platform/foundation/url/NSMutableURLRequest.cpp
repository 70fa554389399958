// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSMutableURLRequest.h"

#include "platform/foundation/base/Overwrite.h"

NSMutableURLRequest NSMutableURLRequest::requestWithURL(const QByteArray &url)
{
    return NSMutableURLRequest(url);
}

NSMutableURLRequest::~NSMutableURLRequest()
{
    overwrite(m_url);
}
