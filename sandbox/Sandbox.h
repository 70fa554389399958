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
/// file, reset messages in an outbox folder. It runs on its own threads during its lifetime, and
/// any thread may call its operations. A test makes one, connects its client to `localhost` at
/// port() with the authority of caFile(), stages faults, and checks requests().
///
///     sandbox::Sandbox service;
///     service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
///     service.stage("/login.php", Fault::close());
class Sandbox {
public:
    struct Options {
        /// The folder of certificates, accounts, issues and messages: made if missing, closed to
        /// other users, used by one service at a time. Empty: a temporary folder.
        QString directory = {};
        /// 0 for any free port.
        quint16 port = 0;
        /// Memory of one password hash, in bytes (8192 or more), and its passes (1 or more). The
        /// default takes some 18 ms.
        size_t hashMemory = size_t{19} * 1024 * 1024;
        unsigned long long hashPasses = 2;
        /// Added to the machine's clock.
        std::chrono::seconds clockOffset{0};
        /// Called with one line for each answered request: method, endpoint and outcome, but no
        /// parameters. Called on threads of the service.
        std::function<void(const QString &)> log = {};
    };

    /// Starts the service with its default options: temporary folder, any port.
    Sandbox();
    /// Starts the service. On failure isRunning() is false, errorString() has the reason, and the
    /// other operations do nothing.
    explicit Sandbox(const Options &options);
    /// Ends the service at once, even with open connections. Accounts and issues remain in the
    /// directory.
    ~Sandbox();
    Q_DISABLE_COPY_MOVE(Sandbox)

    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] QString errorString() const;
    [[nodiscard]] quint16 port() const;
    [[nodiscard]] QString directory() const;
    /// The PEM file with the only authority to trust.
    [[nodiscard]] QString caFile() const;

    /// Adds an account with that password, without checking its other fields. The service chooses
    /// its number. Returns the stored account, or nil if the address is taken.
    std::optional<Account> addAccount(const Account &account, const QString &password);
    /// The same with the password's digest, 64 lower-case hexadecimal digits.
    std::optional<Account> addAccountWithDigest(const Account &account, const QByteArray &digest);
    /// The account with that address, compared without regard to case; nil if there is none.
    [[nodiscard]] std::optional<Account> account(const QString &email) const;
    /// Replaces every field of the account with that number. False if there is none, or if another
    /// account has the new address.
    bool updateAccount(const Account &account);
    /// Changes the account's password. False if there is no such account.
    bool setPassword(const QString &email, const QString &password);
    [[nodiscard]] int accountCount() const;

    /// Adds an issue without checking its fields. The service chooses its number. Returns the
    /// stored issue, or nil on failure.
    std::optional<Issue> addIssue(const Issue &issue);
    /// Adds all the issues or none.
    bool addIssues(QList<Issue> issues);
    /// The issues of that package, sorted by the texts of their dates, newest first.
    [[nodiscard]] QList<Issue> issues(const QString &package) const;
    /// The number of issues of all packages.
    [[nodiscard]] int issueCount() const;

    /// Answers the next `count` requests for that path with the fault; a negative count lasts until
    /// clear(). The path is that of the request without its query, or "*" for any. Several faults
    /// for one path apply in the order of staging.
    void stage(const QByteArray &path, const Fault &fault, int count = 1);
    /// Handles the next `count` new connections in that way; a negative count lasts until clear().
    void stageConnection(ConnectionKind kind, int count = 1);
    /// Runs one line in the syntax of the control socket (see README.md). Returns an empty text or
    /// an error message.
    QString stageLine(const QString &line);
    /// Removes all staged faults and the recorded requests. Does not affect answers in progress.
    void clear();

    /// The last thousand requests, in the order of arrival.
    [[nodiscard]] QList<Request> requests() const;
    /// The number of TCP connections accepted so far.
    [[nodiscard]] int connectionCount() const;

    /// The reset messages written so far, oldest first, in the format of RFC 5322.
    [[nodiscard]] QByteArrayList messages() const;
    /// Advances the service's clock, by which it dates accounts and issues and expires one-time
    /// passwords.
    void advanceClock(std::chrono::seconds time);

    /// The digest that a client sends for that password: the SHA-256 of its UTF-8 bytes, as 64
    /// lower-case hexadecimal digits.
    static QByteArray digestOf(const QString &password);

private:
    std::unique_ptr<Service> m_service;
    QString m_error;
};

} // namespace sandbox
