// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTUser.h"

/// Who is signed in. Screens and the service client read it here and change it here; the
/// application's delegate is the one behind it. Main thread only.
class WZTSession {
public:
    virtual ~WZTSession();

    /// The session of the application; null before its start and after its end.
    [[nodiscard]] static WZTSession *shared();
    /// Makes `session` the shared one; null for none. A session that ends takes itself away.
    static void install(WZTSession *session);

    /// Nil while nobody is signed in.
    [[nodiscard]] virtual const std::optional<WZTUser> &currentUser() const = 0;
    /// Signs `user` in, or replaces the record of who is: keeps it for the next start and shows
    /// it on both tabs.
    virtual void setCurrentUser(const WZTUser &user) = 0;
    /// Signs out: forgets the record and asks for a sign-in.
    virtual void logout() = 0;
};
