// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/endpoints/Outbox.h"
#include "sandbox/endpoints/PasswordHasher.h"
#include "sandbox/http/Router.h"
#include "sandbox/storage/AccountStore.h"
#include "sandbox/storage/Clock.h"

namespace sandbox {

/// The five account endpoints. They answer with the fields of an account, or with {"result": text}.
/// The status is 200 for every proper request, whatever its outcome.
class AccountEndpoints {
public:
    AccountEndpoints(AccountStore &store, const PasswordHasher &hasher, Outbox &outbox,
                     const Clock &clock);

    /// The endpoints refer to this object.
    QList<Endpoint> endpoints();

private:
    Reply login(const Request &request);
    Reply registration(const Request &request);
    Reply passwordReset(const Request &request);
    Reply update(const Request &request);
    Reply user(const Request &request);

    /// Updates an account after the password was checked.
    Reply change(StoredAccount &found, const Request &request);
    /// Makes the one-time password the account's password if the digest is that of a valid one.
    bool adoptOneTimePassword(const StoredAccount &found, const QByteArray &digest);

    AccountStore &m_store;
    const PasswordHasher &m_hasher;
    Outbox &m_outbox;
    const Clock &m_clock;
};

} // namespace sandbox
