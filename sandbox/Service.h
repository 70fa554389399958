// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/Sandbox.h"
#include "sandbox/certificates/CertificateStore.h"
#include "sandbox/endpoints/AccountEndpoints.h"
#include "sandbox/endpoints/IssueEndpoints.h"
#include "sandbox/faults/StagedFaults.h"
#include "sandbox/http/HttpsServer.h"
#include "sandbox/storage/DirectoryLock.h"

#include <QTemporaryDir>

namespace boost::asio {
class thread_pool;
}

namespace sandbox {

/// The parts of a running service, in the order of their dependencies.
class Service {
public:
    explicit Service(const Sandbox::Options &given);
    ~Service();
    Q_DISABLE_COPY_MOVE(Service)

    /// Returns an empty text, or the reason of a failure.
    QString start();
    [[nodiscard]] QList<Request> requests();
    /// Removes the recorded requests and the staged faults.
    void clear();

private:
    [[nodiscard]] HttpsServer::ConnectionSettings settings(ConnectionKind kind) const;
    [[nodiscard]] Reply answerTo(const Request &request) const;
    void handle(const Request &request, const HttpsServer::Answer &answer);
    void log(const Request &request, const QString &outcome) const;

    Sandbox::Options m_options;
    std::unique_ptr<QTemporaryDir> m_temporary;

public:
    const QString directory;
    Clock clock;
    const PasswordHasher hasher;
    Database database;
    AccountStore store{database};
    IssueStore issues{database, clock};
    Outbox outbox;
    StagedFaults stagedFaults;

private:
    DirectoryLock m_lock;
    AccountEndpoints m_accountEndpoints;
    IssueEndpoints m_issueEndpoints{issues};
    Router m_router;
    CertificateStore m_certificates;
    std::mutex m_mutex;
    QList<Request> m_requests;
    std::unique_ptr<boost::asio::thread_pool> m_pool;

public:
    HttpsServer server;
};

} // namespace sandbox
