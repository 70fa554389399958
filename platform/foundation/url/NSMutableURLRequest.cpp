// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSMutableURLRequest.h"

#include <cstring>

NSMutableURLRequest NSMutableURLRequest::requestWithURL(const QByteArray &url)
{
    return NSMutableURLRequest(url);
}

NSMutableURLRequest::~NSMutableURLRequest()
{
    if (m_url.isDetached()) {
        explicit_bzero(m_url.data(), static_cast<size_t>(m_url.size()));
    }
}
