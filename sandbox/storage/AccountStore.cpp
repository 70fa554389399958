// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/storage/AccountStore.h"

#include "sandbox/storage/Statement.h"
#include "sandbox/storage/Transaction.h"

namespace sandbox {

namespace {

Account accountIn(const Statement &row)
{
    return {.number = row.number(0),
            .email = row.text(1),
            .name = row.text(2),
            .reddit = row.optionalText(3),
            .twitter = row.optionalText(4),
            .discord = row.optionalText(5),
            .cydia = row.optionalText(6),
            .earlyAdopter = row.number(7) != 0,
            .joined = row.text(8)};
}

Statement &bindFields(Statement &statement, const Account &account)
{
    return statement.bind(account.email)
        .bind(account.name)
        .bind(account.reddit)
        .bind(account.twitter)
        .bind(account.discord)
        .bind(account.cydia)
        .bind(qint64{account.earlyAdopter})
        .bind(account.joined);
}

} // namespace

Outcome AccountStore::find(const QString &email, StoredAccount *found)
{
    const auto lock = m_database.lock();
    Statement query(m_database,
                    "SELECT number, email, name, reddit, twitter, discord, cydia, early_adopter,"
                    " joined, password, digest, expires"
                    " FROM accounts LEFT JOIN resets ON account = number WHERE email = ?");
    if (!query.bind(email).nextRow()) {
        return query.hasFailed() ? Outcome::Failed : Outcome::Missing;
    }
    *found = {.account = accountIn(query),
              .passwordHash = query.text(9),
              .resetFingerprint = query.bytes(10),
              .resetExpires = query.number(11)};
    return Outcome::Done;
}

Outcome AccountStore::add(Account *account, const QString &passwordHash)
{
    const auto lock = m_database.lock();
    Statement insert(m_database,
                     "INSERT INTO accounts (email, name, reddit, twitter, discord, cydia,"
                     " early_adopter, joined, password) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    const Outcome outcome = bindFields(insert, *account).bind(passwordHash).change();
    if (outcome == Outcome::Done) {
        account->number = m_database.lastNumber();
    }
    return outcome;
}

Outcome AccountStore::replace(const Account &account)
{
    const auto lock = m_database.lock();
    Statement update(
        m_database,
        "UPDATE accounts SET email = ?, name = ?, reddit = ?, twitter = ?, discord = ?,"
        " cydia = ?, early_adopter = ?, joined = ? WHERE number = ?");
    return bindFields(update, account).bind(account.number).change();
}

Outcome AccountStore::change(qint64 number, const QString &oldHash,
                             const std::optional<QString> &name,
                             const std::optional<QString> &newHash)
{
    const auto lock = m_database.lock();
    Transaction transaction(m_database);
    Statement update(m_database,
                     "UPDATE accounts SET name = ifnull(?, name), password = ifnull(?, password)"
                     " WHERE number = ? AND password = ?");
    const Outcome outcome = update.bind(name).bind(newHash).bind(number).bind(oldHash).change();
    if (outcome != Outcome::Done) {
        return outcome;
    }
    if (newHash) {
        Statement forget(m_database, "DELETE FROM resets WHERE account = ?");
        if (forget.bind(number).change() == Outcome::Failed) {
            return Outcome::Failed;
        }
    }
    return transaction.commit() ? Outcome::Done : Outcome::Failed;
}

int AccountStore::count()
{
    const auto lock = m_database.lock();
    Statement query(m_database, "SELECT count(*) FROM accounts");
    return query.nextRow() ? static_cast<int>(query.number(0)) : -1;
}

Outcome AccountStore::startReset(qint64 number, const QByteArray &fingerprint, qint64 expires,
                                 const std::function<bool()> &deliver)
{
    const auto lock = m_database.lock();
    Transaction transaction(m_database);
    Statement insert(m_database,
                     "INSERT OR REPLACE INTO resets (account, digest, expires) VALUES (?, ?, ?)");
    const Outcome outcome = insert.bind(number).bind(fingerprint).bind(expires).change();
    if (outcome != Outcome::Done) {
        return outcome;
    }
    return deliver() && transaction.commit() ? Outcome::Done : Outcome::Failed;
}

Outcome AccountStore::adoptReset(qint64 number, const QByteArray &fingerprint,
                                 const QString &newHash)
{
    const auto lock = m_database.lock();
    Transaction transaction(m_database);
    Statement take(m_database, "DELETE FROM resets WHERE account = ? AND digest = ?");
    Outcome outcome = take.bind(number).bind(fingerprint).change();
    if (outcome != Outcome::Done) {
        return outcome;
    }
    Statement update(m_database, "UPDATE accounts SET password = ? WHERE number = ?");
    outcome = update.bind(newHash).bind(number).change();
    return outcome == Outcome::Done && !transaction.commit() ? Outcome::Failed : outcome;
}

} // namespace sandbox
