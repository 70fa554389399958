// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Account.h"
#include "sandbox/storage/Database.h"

#include <functional>

namespace sandbox {

/// An account and its password data.
struct StoredAccount {
    Account account;
    /// The slow hash of the password's digest.
    QString passwordHash;
    /// The fingerprint of the digest of a valid one-time password, or empty, and the time of its
    /// expiry in seconds since 1970.
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
    /// Changes name, password or both of the account, whose hash must still be `oldHash` (Missing
    /// if not). A new password invalidates a one-time password.
    Outcome change(qint64 number, const QString &oldHash, const std::optional<QString> &name,
                   const std::optional<QString> &newHash);
    /// -1 on failure.
    int count();

    /// Stores a one-time password, which replaces an earlier one, if `deliver` succeeds.
    Outcome startReset(qint64 number, const QByteArray &fingerprint, qint64 expires,
                       const std::function<bool()> &deliver);
    /// Makes the one-time password the account's password; Missing if it is no longer valid.
    Outcome adoptReset(qint64 number, const QByteArray &fingerprint, const QString &newHash);

private:
    Database &m_database;
};

} // namespace sandbox
