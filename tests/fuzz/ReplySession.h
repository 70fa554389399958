// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/NSURLSession.h"

#include <QByteArray>

/// While it lives, every task of the shared session completes at once with `reply`. A program that
/// has this has no other session: the linker takes this one's NSURLSession for the real one.
class ReplySession {
public:
    explicit ReplySession(const QByteArray &reply);
    ~ReplySession();
    Q_DISABLE_COPY_MOVE(ReplySession)

private:
    NSURLSession m_session;
};
