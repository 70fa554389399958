// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"

#include "sandbox/Service.h"
#include "sandbox/faults/StageCommand.h"

#include <QCryptographicHash>

namespace sandbox {

Sandbox::Sandbox() : Sandbox(Options()) {}

Sandbox::Sandbox(const Options &options) : m_service(std::make_unique<Service>(options))
{
    m_error = m_service->start();
}

Sandbox::~Sandbox() = default;

bool Sandbox::isRunning() const
{
    return m_error.isEmpty();
}

QString Sandbox::errorString() const
{
    return m_error;
}

quint16 Sandbox::port() const
{
    return m_service->server.port();
}

QString Sandbox::directory() const
{
    return m_service->directory;
}

QString Sandbox::caFile() const
{
    return CertificateStore::caFile(m_service->directory);
}

std::optional<Account> Sandbox::addAccount(const Account &account, const QString &password)
{
    return addAccountWithDigest(account, digestOf(password));
}

std::optional<Account> Sandbox::addAccountWithDigest(const Account &account,
                                                     const QByteArray &digest)
{
    Account added = account;
    if (added.joined.isEmpty()) {
        added.joined = m_service->clock.text();
    }
    const QString hash = isRunning() ? m_service->hasher.hash(digest) : QString();
    const bool isAdded = !hash.isEmpty() && m_service->store.add(&added, hash) == Outcome::Done;
    return isAdded ? std::optional(added) : std::nullopt;
}

std::optional<Account> Sandbox::account(const QString &email) const
{
    StoredAccount found;
    const bool isFound = isRunning() && m_service->store.find(email, &found) == Outcome::Done;
    return isFound ? std::optional(found.account) : std::nullopt;
}

bool Sandbox::updateAccount(const Account &account)
{
    return isRunning() && m_service->store.replace(account) == Outcome::Done;
}

bool Sandbox::setPassword(const QString &email, const QString &password)
{
    StoredAccount found;
    return isRunning() && m_service->store.find(email, &found) == Outcome::Done
        && m_service->store.change(found.account.number, found.passwordHash, {},
                                   m_service->hasher.hash(digestOf(password)))
        == Outcome::Done;
}

int Sandbox::accountCount() const
{
    return isRunning() ? m_service->store.count() : 0;
}

std::optional<Issue> Sandbox::addIssue(const Issue &issue)
{
    QList<Issue> added{issue};
    const bool isAdded = isRunning() && m_service->issues.add(&added) == Outcome::Done;
    return isAdded ? std::optional(added.first()) : std::nullopt;
}

bool Sandbox::addIssues(QList<Issue> issues)
{
    return isRunning() && m_service->issues.add(&issues) == Outcome::Done;
}

QList<Issue> Sandbox::issues(const QString &package) const
{
    QList<Issue> found;
    const bool isFound = isRunning() && m_service->issues.list(package, &found) == Outcome::Done;
    return isFound ? found : QList<Issue>();
}

int Sandbox::issueCount() const
{
    return isRunning() ? m_service->issues.count() : 0;
}

void Sandbox::stage(const QByteArray &path, const Fault &fault, int count)
{
    m_service->stagedFaults.stage(path, fault, count);
}

void Sandbox::stageConnection(ConnectionKind kind, int count)
{
    m_service->stagedFaults.stageConnection(kind, count);
}

QString Sandbox::stageLine(const QString &line)
{
    return sandbox::stageLine(m_service->stagedFaults, line);
}

void Sandbox::clear()
{
    m_service->clear();
}

QList<Request> Sandbox::requests() const
{
    return m_service->requests();
}

int Sandbox::connectionCount() const
{
    return m_service->server.connectionCount();
}

QByteArrayList Sandbox::messages() const
{
    return m_service->outbox.messages();
}

void Sandbox::advanceClock(std::chrono::seconds time)
{
    m_service->clock.advance(time);
}

QByteArray Sandbox::digestOf(const QString &password)
{
    return QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha256).toHex();
}

} // namespace sandbox
