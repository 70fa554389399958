// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"

#include "sandbox/AccountEndpoints.h"
#include "sandbox/Certificates.h"
#include "sandbox/DirectoryLock.h"
#include "sandbox/FaultLine.h"
#include "sandbox/HttpMessage.h"
#include "sandbox/HttpsServer.h"
#include "sandbox/PrivateFile.h"
#include "sandbox/StageBook.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThreadPool>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sandbox {

struct Sandbox::State {
    explicit State(const Options &given)
        : options(given),
          clock(given.clockOffset),
          temporary(given.directory.isEmpty() ? std::make_unique<QTemporaryDir>() : nullptr),
          directory(temporary ? temporary->path() : QFileInfo(given.directory).absoluteFilePath()),
          hasher(given.hashMemory, given.hashPasses),
          outbox(directory + u"/outbox"_s),
          accountEndpoints(store, hasher, outbox, clock),
          server([this](const Request &request,
                        const HttpsServer::Answer &answer) { handle(request, answer); },
                 [this] { return certificates.context(book.takeReception()); })
    {
        router.add(accountEndpoints.endpoints());
        pool.setMaxThreadCount(std::max(2, QThread::idealThreadCount()));
    }

    ~State()
    {
        server.stop();
        pool.clear();
        pool.waitForDone();
    }

    State(const State &) = delete;
    State &operator=(const State &) = delete;

    QString start()
    {
        const std::array<std::function<QString()>, 6> steps{
            [this] { return makePrivateDirectory(directory); },
            [this] { return lock.take(directory); },
            [this] { return hasher.isReady() ? QString() : u"password hashes cannot be made"_s; },
            [this] { return database.open(directory + u"/service.sqlite"_s); },
            [this] { return certificates.open(directory, clock.now()); },
            [this] { return server.start(options.port); },
        };
        QString problem;
        for (auto step = steps.begin(); step != steps.end() && problem.isEmpty(); ++step) {
            problem = (*step)();
        }
        return problem;
    }

    void handle(const Request &request, const HttpsServer::Answer &answer)
    {
        std::optional<Fault> fault;
        if (!request.malformed) {
            const std::lock_guard guard(mutex);
            requests.append(request);
            fault = book.takeFault(request.path);
        }
        if (fault && !fault->sendsRealAnswer()) {
            log(request, u"staged"_s);
            return answer(fault->transmission(request, {}, server.port()));
        }
        pool.start([this, request, answer, fault] {
            const Reply reply = router.answer(request);
            log(request, QString::number(reply.status));
            answer(fault ? fault->transmission(request, reply, server.port())
                         : transmissionOf(request, reply));
        });
    }

    // The path is the client's own text unless it is one of ours.
    void log(const Request &request, const QString &outcome) const
    {
        if (options.log) {
            const bool isKnown = router.endpoint(request.path) != nullptr;
            options.log((isKnown ? QString::fromLatin1(request.method + ' ' + request.path)
                                 : u"another request"_s)
                        + u": " + outcome);
        }
    }

    Options options;
    Clock clock;
    std::unique_ptr<QTemporaryDir> temporary;
    QString directory;
    QString error;
    DirectoryLock lock;
    PasswordHasher hasher;
    Database database;
    AccountStore store{database};
    Outbox outbox;
    AccountEndpoints accountEndpoints;
    Router router;
    Certificates certificates;
    StageBook book;
    std::mutex mutex;
    QList<Request> requests;
    QThreadPool pool;
    HttpsServer server;
};

Sandbox::Sandbox() : Sandbox(Options()) { }

Sandbox::Sandbox(const Options &options) : m_state(std::make_unique<State>(options))
{
    m_state->error = m_state->start();
}

Sandbox::~Sandbox() = default;

bool Sandbox::isRunning() const
{
    return m_state->error.isEmpty();
}

QString Sandbox::errorString() const
{
    return m_state->error;
}

quint16 Sandbox::port() const
{
    return m_state->server.port();
}

QString Sandbox::directory() const
{
    return m_state->directory;
}

QString Sandbox::caFile() const
{
    return Certificates::caFile(m_state->directory);
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
        added.joined = m_state->clock.joinDate();
    }
    const bool isAdded =
        isRunning() && m_state->store.add(&added, m_state->hasher.hash(digest)) == Outcome::Done;
    return isAdded ? std::optional(added) : std::nullopt;
}

std::optional<Account> Sandbox::account(const QString &email) const
{
    StoredAccount found;
    const bool isFound = isRunning() && m_state->store.find(email, &found) == Outcome::Done;
    return isFound ? std::optional(found.account) : std::nullopt;
}

bool Sandbox::updateAccount(const Account &account)
{
    return isRunning() && m_state->store.replace(account) == Outcome::Done;
}

bool Sandbox::setPassword(const QString &email, const QString &password)
{
    StoredAccount found;
    return isRunning() && m_state->store.find(email, &found) == Outcome::Done
        && m_state->store.change(found.account.number, found.passwordHash, {},
                                 m_state->hasher.hash(digestOf(password)))
        == Outcome::Done;
}

bool Sandbox::removeAccount(const QString &email)
{
    return isRunning() && m_state->store.remove(email) == Outcome::Done;
}

int Sandbox::accountCount() const
{
    return isRunning() ? m_state->store.count() : 0;
}

void Sandbox::stage(const QByteArray &path, const Fault &fault, int count)
{
    m_state->book.stage(path, fault, count);
}

void Sandbox::receive(Reception reception, int count)
{
    m_state->book.receive(reception, count);
}

QString Sandbox::stageLine(const QString &line)
{
    return sandbox::stageLine(m_state->book, line);
}

void Sandbox::clear()
{
    const std::lock_guard guard(m_state->mutex);
    m_state->book.clear();
    m_state->requests.clear();
}

QList<Request> Sandbox::requests() const
{
    const std::lock_guard guard(m_state->mutex);
    return m_state->requests;
}

int Sandbox::connectionCount() const
{
    return m_state->server.connectionCount();
}

void Sandbox::closeIdleConnections()
{
    m_state->server.closeIdleConnections();
}

QByteArrayList Sandbox::messages() const
{
    return m_state->outbox.messages();
}

void Sandbox::advanceClock(std::chrono::seconds time)
{
    m_state->clock.advance(time);
}

QByteArray Sandbox::digestOf(const QString &password)
{
    return QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha256).toHex();
}

} // namespace sandbox
