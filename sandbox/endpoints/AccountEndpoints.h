// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/endpoints/Outbox.h"
#include "sandbox/endpoints/PasswordHasher.h"
#include "sandbox/http/Router.h"
#include "sandbox/storage/AccountStore.h"
#include "sandbox/storage/Clock.h"

namespace sandbox {

/// What the five account endpoints do. A user is answered with the account's fields at the top
/// level of the object, everything else with {"result": text}; the status is 200 where the request
/// was a proper one, whatever its outcome.
class AccountEndpoints {
public:
    AccountEndpoints(AccountStore &store, const PasswordHasher &hasher, Outbox &outbox,
                     const Clock &clock);

    /// They refer to this object.
    QList<Endpoint> endpoints();

private:
    Reply login(const Request &request);
    Reply registration(const Request &request);
    Reply passwordReset(const Request &request);
    Reply update(const Request &request);
    Reply user(const Request &request);

    /// An update whose sender has shown the password.
    Reply change(StoredAccount &found, const Request &request);
    /// Whether the digest is of the one-time password that is out: it is the account's then.
    bool adoptOneTimePassword(const StoredAccount &found, const QByteArray &digest);

    AccountStore &m_store;
    const PasswordHasher &m_hasher;
    Outbox &m_outbox;
    const Clock &m_clock;
};

} // namespace sandbox
