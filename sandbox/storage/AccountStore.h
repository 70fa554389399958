// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Account.h"
#include "sandbox/storage/Database.h"

#include <functional>

namespace sandbox {

/// What the store keeps of an account.
struct StoredAccount {
    Account account;
    /// The slow hash of the password's digest.
    QString passwordHash;
    /// The fingerprint of a one-time password's digest, empty if none is out, and the moment from
    /// which it is no longer good (seconds since 1970).
    QByteArray resetFingerprint;
    qint64 resetExpires = 0;
};

/// The accounts in the database. Addresses are compared without regard to case. Safe on any thread.
class AccountStore {
public:
    explicit AccountStore(Database &database) : m_database(database) {}

    /// Done, Missing or Failed.
    Outcome find(const QString &email, StoredAccount *found);
    /// Adds it and sets its number. Done, Taken or Failed.
    Outcome add(Account *account, const QString &passwordHash);
    /// Replaces every field of the account of that number.
    Outcome replace(const Account &account);
    /// Gives the account a password, and takes back a one-time password that is out; only if its
    /// hash is still `oldHash` (Missing if not). The name as well if there is one; without a new
    /// hash, the name alone.
    Outcome change(qint64 number, const QString &oldHash, const std::optional<QString> &name,
                   const std::optional<QString> &newHash);
    Outcome remove(const QString &email);
    /// -1 if they cannot be counted.
    int count();

    /// Keeps a one-time password, in place of an earlier one, if it can be delivered too.
    Outcome startReset(qint64 number, const QByteArray &fingerprint, qint64 expires,
                       const std::function<bool()> &deliver);
    /// Makes the one-time password the account's; Missing if it is no longer out.
    Outcome adoptReset(qint64 number, const QByteArray &fingerprint, const QString &newHash);

private:
    Database &m_database;
};

} // namespace sandbox
