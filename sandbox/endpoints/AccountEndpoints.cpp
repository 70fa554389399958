// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/AccountEndpoints.h"

#include "sandbox/endpoints/AccountReply.h"
#include "sandbox/endpoints/AccountRules.h"
#include "sandbox/endpoints/OneTimePassword.h"
#include "sandbox/endpoints/ResetMessage.h"
#include "sandbox/http/HttpMessage.h"
#include "sandbox/http/Request.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr qint64 oneTimeLife = 3600;

Reply failure()
{
    return resultReply("Internal Error"_L1, 500);
}

// The status of a request without a required parameter is 400, whatever its text.
int statusFor(const QString &required)
{
    return required.isEmpty() ? 400 : 200;
}

// Nil for a missing or empty parameter.
std::optional<QString> optionalParameter(const Request &request, QStringView name)
{
    const auto text = request.parameter(name);
    return text && !text->isEmpty() ? text : std::nullopt;
}

} // namespace

AccountEndpoints::AccountEndpoints(AccountStore &store, const PasswordHasher &hasher,
                                   Outbox &outbox, const Clock &clock)
    : m_store(store), m_hasher(hasher), m_outbox(outbox), m_clock(clock)
{
}

QList<Endpoint> AccountEndpoints::endpoints()
{
    const auto call = [this](Reply (AccountEndpoints::*operation)(const Request &)) {
        return [this, operation](const Request &request) { return (this->*operation)(request); };
    };
    return {
        {"/login.php", "GET", "Improper request"_L1, call(&AccountEndpoints::login)},
        {"/register.php", "GET", "Improper request"_L1, call(&AccountEndpoints::registration)},
        {"/passwordreset.php", "POST", "Improper request"_L1,
         call(&AccountEndpoints::passwordReset)},
        {"/update.php", "POST", "Improper request"_L1, call(&AccountEndpoints::update)},
        {"/user.php", "GET", "Invalid Request"_L1, call(&AccountEndpoints::user)},
    };
}

Reply AccountEndpoints::login(const Request &request)
{
    const QString email = request.text(u"userEmail");
    const QString digest = request.text(u"userPassword");
    StoredAccount found;
    const Outcome outcome = m_store.find(email, &found);
    if (outcome == Outcome::Missing) {
        m_hasher.verifyDummy(digest.toUtf8());
        return resultReply("User Does Not Exist"_L1, statusFor(email));
    }
    if (outcome != Outcome::Done) {
        return failure();
    }
    const bool isRight = adoptOneTimePassword(found, digest.toUtf8())
        || PasswordHasher::matches(found.passwordHash, digest.toUtf8());
    return isRight ? userReply(found.account) : resultReply("Incorrect"_L1, statusFor(digest));
}

// The fingerprint is fast, so a wrong password always costs exactly one slow hash.
bool AccountEndpoints::adoptOneTimePassword(const StoredAccount &found, const QByteArray &digest)
{
    if (m_clock.now() >= found.resetExpires
        || PasswordHasher::fingerprint(digest) != found.resetFingerprint) {
        return false;
    }
    const QString hash = m_hasher.hash(digest);
    return !hash.isEmpty()
        && m_store.adoptReset(found.account.number, found.resetFingerprint, hash) == Outcome::Done;
}

Reply AccountEndpoints::registration(const Request &request)
{
    Account account{.email = request.text(u"userEmail"),
                    .name = request.text(u"userName"),
                    .joined = m_clock.text()};
    const QString digest = request.text(u"userPassword");
    if (!isAddress(account.email) || !isName(account.name) || !isDigest(digest)) {
        return resultReply("Improper request"_L1, 400);
    }
    const QString hash = m_hasher.hash(digest.toLatin1());
    switch (hash.isEmpty() ? Outcome::Failed : m_store.add(&account, hash)) {
    case Outcome::Done:
        return userReply(account);
    case Outcome::Taken:
        return resultReply("User Exists"_L1);
    case Outcome::Missing:
    case Outcome::Failed:
        return failure();
    }
    return failure();
}

Reply AccountEndpoints::passwordReset(const Request &request)
{
    const QString email = request.text(u"userEmail");
    StoredAccount found;
    const Outcome outcome = m_store.find(email, &found);
    if (outcome == Outcome::Missing) {
        return resultReply("User Not Found"_L1, statusFor(email));
    }
    const QString password = makeOneTimePassword();
    const QByteArray digest =
        QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha256).toHex();
    const auto deliver = [&] {
        return m_outbox.write(
            resetMessage(found.account.name, found.account.email, password, m_clock.dateTime()));
    };
    const bool isSent = outcome == Outcome::Done
        && m_store.startReset(found.account.number, PasswordHasher::fingerprint(digest),
                              m_clock.now() + oneTimeLife, deliver)
            == Outcome::Done;
    return isSent ? resultReply("Message has been sent"_L1)
                  : resultReply("Message could not be sent"_L1, 500);
}

Reply AccountEndpoints::update(const Request &request)
{
    const QString email = request.text(u"userEmail");
    const QString oldDigest = request.text(u"userOldPassword");
    StoredAccount found;
    const Outcome outcome = m_store.find(email, &found);
    if (outcome == Outcome::Missing) {
        m_hasher.verifyDummy(oldDigest.toUtf8());
        return resultReply("User Not Found"_L1, statusFor(email));
    }
    if (outcome != Outcome::Done) {
        return failure();
    }
    if (!PasswordHasher::matches(found.passwordHash, oldDigest.toUtf8())) {
        return resultReply("Incorrect"_L1, statusFor(oldDigest));
    }
    return change(found, request);
}

Reply AccountEndpoints::change(StoredAccount &found, const Request &request)
{
    const auto name = optionalParameter(request, u"userName");
    const auto newDigest = optionalParameter(request, u"userNewPassword");
    if ((name && !isName(*name)) || (newDigest && !isDigest(*newDigest))) {
        return resultReply("Improper request"_L1, 400);
    }
    const auto newHash =
        newDigest ? std::optional(m_hasher.hash(newDigest->toLatin1())) : std::nullopt;
    if (newHash && newHash->isEmpty()) {
        return failure();
    }
    switch (m_store.change(found.account.number, found.passwordHash, name, newHash)) {
    case Outcome::Done:
        found.account.name = name.value_or(found.account.name);
        return userReply(found.account);
    case Outcome::Missing:
        return resultReply("Incorrect"_L1);
    case Outcome::Taken:
    case Outcome::Failed:
        return failure();
    }
    return failure();
}

Reply AccountEndpoints::user(const Request &request)
{
    const QString email = request.text(u"userEmail");
    if (email.isEmpty()) {
        return resultReply("Invalid Request"_L1, 400);
    }
    StoredAccount found;
    switch (m_store.find(email, &found)) {
    case Outcome::Done:
        return userReply(found.account);
    case Outcome::Missing:
        return resultReply("No User"_L1);
    case Outcome::Taken:
    case Outcome::Failed:
        return failure();
    }
    return failure();
}

} // namespace sandbox
