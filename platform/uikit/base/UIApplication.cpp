// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/base/UIApplication.h"

#include "platform/uikit/base/Host.h"

namespace {
UIApplication *shared = nullptr;
}

UIApplication::UIApplication(Host &host) : m_host(host)
{
    Q_ASSERT(!shared);
    shared = this;
}

UIApplication::~UIApplication()
{
    shared = nullptr;
}

UIApplication *UIApplication::sharedApplication()
{
    return shared;
}

bool UIApplication::canOpenURL(const QString &url) const
{
    return m_host.canOpenURL(url);
}

void UIApplication::openURL(const QString &url)
{
    m_host.openURL(url);
}
