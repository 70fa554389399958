// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/faults/Fault.h"
#include "sandbox/http/ConnectionKind.h"
#include "sandbox/http/Request.h"
#include "sandbox/storage/Account.h"
#include "sandbox/storage/Issue.h"

#include <QByteArrayList>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace sandbox {

class Service;

/// The web service on this machine: HTTPS on 127.0.0.1 and ::1, accounts and issues in an SQLite
/// file, reset messages in an outbox folder. It runs on threads of its own from construction to
/// destruction, and every operation may be called from any thread. A test makes one, lets the
/// client connect to `localhost` at port() trusting caFile(), stages what is to go wrong, and looks
/// at requests().
///
///     sandbox::Sandbox service;
///     service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
///     service.stage("/login.php", Fault::close());
class Sandbox {
public:
    struct Options {
        /// Where certificates, accounts, issues and messages are kept; made if missing, closed to
        /// other users, used by one service at a time. Empty: a temporary one, removed at the end.
        QString directory = {};
        /// 0: any free port.
        quint16 port = 0;
        /// Memory of one password hash, in bytes (8192 or more), and its passes (1 or more). The
        /// default takes some 18 ms.
        size_t hashMemory = size_t{19} * 1024 * 1024;
        unsigned long long hashPasses = 2;
        /// Added to the machine's clock.
        std::chrono::seconds clockOffset{0};
        /// Called with one line for each request answered: method, endpoint, status; never with
        /// anything that a client sent as a parameter. Called on threads of the service.
        std::function<void(const QString &)> log = {};
    };

    /// Starts the service with its default options: temporary folder, any port.
    Sandbox();
    /// Starts the service. When that fails isRunning() is false, errorString() says why, and the
    /// other operations do nothing.
    explicit Sandbox(const Options &options);
    /// Ends the service within a moment, waiting clients or not. Accounts and issues stay in the
    /// directory.
    ~Sandbox();
    Q_DISABLE_COPY_MOVE(Sandbox)

    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] QString errorString() const;
    [[nodiscard]] quint16 port() const;
    [[nodiscard]] QString directory() const;
    /// The file with the only authority to trust, in PEM.
    [[nodiscard]] QString caFile() const;

    /// Adds an account whose password is that text (its digest, as a client sends it, is of the
    /// text as it stands). Its number is chosen by the service. Returns the account as stored, or
    /// nothing if the address is taken; the other fields are not checked.
    std::optional<Account> addAccount(const Account &account, const QString &password);
    /// The same with a ready digest of 64 lower-case hexadecimal digits.
    std::optional<Account> addAccountWithDigest(const Account &account, const QByteArray &digest);
    /// The account of that address, in any case; absent if there is none.
    [[nodiscard]] std::optional<Account> account(const QString &email) const;
    /// Replaces every field of the account of that number, behind the client's back. False if
    /// there is none or if the new address is another account's.
    bool updateAccount(const Account &account);
    /// Gives the account another password, as addAccount() takes it. False if there is none.
    bool setPassword(const QString &email, const QString &password);
    /// False if there is none.
    bool removeAccount(const QString &email);
    [[nodiscard]] int accountCount() const;

    /// Adds an issue without checking any of its fields; its number is chosen by the service.
    /// Returns it as stored, or nothing if it cannot be.
    std::optional<Issue> addIssue(const Issue &issue);
    /// The same for many, all or none.
    bool addIssues(QList<Issue> issues);
    /// The issues of that package, newest first: in the order of their dates as texts.
    [[nodiscard]] QList<Issue> issues(const QString &package) const;
    /// Of all packages.
    [[nodiscard]] int issueCount() const;

    /// Answers the next `count` requests for that path with the fault; a negative count lasts until
    /// clear(). The path is compared as sent, without the query; "*" stands for any. Faults staged
    /// for the same request are used up in the order of staging.
    void stage(const QByteArray &path, const Fault &fault, int count = 1);
    /// Receives the next `count` connections in that way; a negative count lasts until clear().
    /// Connections that are open already are not affected.
    void stageConnection(ConnectionKind kind, int count = 1);
    /// Stages what one line says, as the control socket takes it (see README.md). Returns an empty
    /// text, or what is wrong with the line.
    QString stageLine(const QString &line);
    /// Forgets all that is staged, and the requests seen. Answers under way are not affected.
    void clear();

    /// The requests read so far, in the order in which they came: the last thousand of them.
    [[nodiscard]] QList<Request> requests() const;
    /// TCP connections accepted so far, whatever became of them.
    [[nodiscard]] int connectionCount() const;

    /// The reset messages written so far, oldest first, each a complete RFC 5322 message.
    [[nodiscard]] QByteArrayList messages() const;
    /// Puts the service's clock forward: dates, one-time passwords.
    void advanceClock(std::chrono::seconds time);

    /// What a client sends for that password: the SHA-256 of its UTF-8 bytes, as 64 lower-case
    /// hexadecimal digits.
    static QByteArray digestOf(const QString &password);

private:
    std::unique_ptr<Service> m_service;
    QString m_error;
};

} // namespace sandbox
