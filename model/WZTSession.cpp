// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTSession.h"

namespace {

constinit WZTSession *sharedSession = nullptr;

} // namespace

WZTSession::~WZTSession()
{
    if (sharedSession == this) {
        sharedSession = nullptr;
    }
}

WZTSession *WZTSession::shared()
{
    return sharedSession;
}

void WZTSession::install(WZTSession *session)
{
    sharedSession = session;
}
