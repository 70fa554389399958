// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTUser.h"

/// The signed-in user, for the screens and the service client. The application's delegate
/// implements it. Main thread only.
class WZTSession {
public:
    virtual ~WZTSession();

    /// The session of the application; null before its start and after its end.
    [[nodiscard]] static WZTSession *shared();
    /// Makes `session` the shared one; null removes it. The destructor removes a shared session.
    static void install(WZTSession *session);

    /// Nil while nobody is signed in.
    [[nodiscard]] virtual const std::optional<WZTUser> &currentUser() const = 0;
    /// Signs `user` in or replaces the record of the signed-in user, stores the record for the next
    /// start and reloads both tabs. A record that cannot be archived is only held in memory, and
    /// nothing is reloaded.
    virtual void setCurrentUser(const WZTUser &user) = 0;
    /// Signs out: removes the record and presents Login.
    virtual void logout() = 0;
};
