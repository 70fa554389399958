// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Service.h"

#include "sandbox/http/HttpMessage.h"
#include "sandbox/storage/StateFiles.h"

#include <boost/asio/post.hpp>
#include <boost/asio/thread_pool.hpp>

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <thread>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

constexpr qsizetype maximumRequests = 1000;
constexpr auto handshakeDelay = std::chrono::seconds(2);

} // namespace

Service::Service(const Sandbox::Options &given)
    : m_options(given),
      m_temporary(given.directory.isEmpty() ? std::make_unique<QTemporaryDir>() : nullptr),
      directory(m_temporary ? m_temporary->path() : QFileInfo(given.directory).absoluteFilePath()),
      clock(given.clockOffset),
      hasher(given.hashMemory, given.hashPasses),
      outbox(directory + u"/outbox"_s),
      m_accountEndpoints(store, hasher, outbox, clock),
      m_pool(std::make_unique<boost::asio::thread_pool>(
          std::max(2U, std::thread::hardware_concurrency()))),
      server([this](const Request &request,
                    const HttpsServer::Answer &answer) { handle(request, answer); },
             [this] { return settings(stagedFaults.takeConnectionKind()); })
{
    m_router.add(m_accountEndpoints.endpoints());
    m_router.add(m_issueEndpoints.endpoints());
}

// Work in the pool refers to the server's connections, so the pool is destroyed first.
Service::~Service()
{
    server.stop();
    m_pool.reset();
}

QString Service::start()
{
    const std::array<std::function<QString()>, 6> steps{
        [this] { return makeStateFolder(directory); },
        [this] { return m_lock.take(directory); },
        [this] { return hasher.isReady() ? QString() : u"password hashes cannot be made"_s; },
        [this] { return database.open(directory + u"/service.sqlite"_s); },
        [this] { return m_certificates.open(directory, clock.now()); },
        [this] { return server.start(m_options.port); },
    };
    QString problem;
    for (auto step = steps.begin(); step != steps.end() && problem.isEmpty(); ++step) {
        problem = (*step)();
    }
    return problem;
}

QList<Request> Service::requests()
{
    const std::lock_guard guard(m_mutex);
    return m_requests;
}

void Service::clear()
{
    const std::lock_guard guard(m_mutex);
    m_requests.clear();
    stagedFaults.clear();
}

HttpsServer::ConnectionSettings Service::settings(ConnectionKind kind) const
{
    return {m_certificates.context(kind),
            kind == ConnectionKind::LateHandshake ? handshakeDelay : std::chrono::seconds(0)};
}

void Service::handle(const Request &request, const HttpsServer::Answer &answer)
{
    std::optional<Fault> fault;
    if (!request.malformed) {
        const std::lock_guard guard(m_mutex);
        if (m_requests.size() == maximumRequests) {
            m_requests.removeFirst();
        }
        m_requests.append(request);
        fault = stagedFaults.takeFault(request.path);
    }
    if (fault && !fault->sendsRealAnswer()) {
        log(request, u"staged"_s);
        return answer(fault->transmission(request, {}, server.port()));
    }
    boost::asio::post(*m_pool, [this, request, answer, fault] {
        try {
            const Reply reply = answerTo(request);
            answer(fault ? fault->transmission(request, reply, server.port())
                         : transmissionOf(request, reply));
        } catch (...) {
            log(request, u"no answer"_s);
        }
    });
}

Reply Service::answerTo(const Request &request) const
{
    try {
        const Reply reply = m_router.answer(request);
        log(request, QString::number(reply.status));
        return reply;
    } catch (...) {
        const Reply reply = resultReply("Internal Server Error"_L1, 500);
        log(request, QString::number(reply.status));
        return reply;
    }
}

// An unknown path is text of the client and must not be logged.
void Service::log(const Request &request, const QString &outcome) const
{
    if (m_options.log) {
        const bool isKnown = m_router.endpoint(request.path) != nullptr;
        m_options.log((isKnown ? QString::fromLatin1(request.method + ' ' + request.path)
                               : u"another request"_s)
                      + u": " + outcome);
    }
}

} // namespace sandbox
