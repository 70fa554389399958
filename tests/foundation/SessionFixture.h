// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestRunner.h"
#include "platform/foundation/url/NSURLSession.h"
#include "sandbox/Sandbox.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <latch>
#include <memory>
#include <thread>

/// Records the calls of one task's completion.
struct Outcome {
    QByteArray body;
    int code = 0;
    std::atomic<int> calls = 0;
    std::thread::id thread;
    std::latch done{1};

    NSURLSessionDataTask::Completion completion()
    {
        return [this](const QByteArray &data, const std::optional<NSError> &failure) {
            body = data;
            code = failure ? failure->code : 0;
            thread = std::this_thread::get_id();
            if (++calls == 1) {
                done.count_down();
            }
        };
    }
};

/// A session and its service. No test may log a line.
class SessionFixture : public QObject {
    Q_OBJECT

protected:
    /// Long enough for a busy machine.
    static constexpr std::chrono::seconds idle{30};
    /// For requests that are to time out.
    static constexpr std::chrono::milliseconds soon{300};
    static inline const QByteArray userURL = "https://localhost/user.php?userEmail=secret";

    [[nodiscard]] NSURLSessionConfiguration
    configuration(std::chrono::milliseconds timeout = idle) const
    {
        const QString address = QStringLiteral("127.0.0.1:%1").arg(m_service.port());
        return {m_service.caFile(), address, timeout};
    }
    void send(Outcome &outcome, const QByteArray &method = "GET", const QByteArray &url = userURL)
    {
        NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(url);
        request.setHTTPMethod(method);
        const auto task = m_session->dataTaskWithRequest(request, outcome.completion());
        task->resume();
        task->resume(); // sends nothing more
    }
    /// The same with a completion of its own.
    void send(NSURLSessionDataTask::Completion completion, const QByteArray &url = userURL)
    {
        const auto request = NSMutableURLRequest::requestWithURL(url);
        m_session->dataTaskWithRequest(request, std::move(completion))->resume();
    }
    /// The error code of such a request, 0 for success.
    [[nodiscard]] int codeOf(const QByteArray &method = "GET", const QByteArray &url = userURL)
    {
        Outcome outcome;
        send(outcome, method, url);
        outcome.done.wait();
        return outcome.code;
    }

    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;

private Q_SLOTS:
    void initTestCase()
    {
        // The long name makes a long reply, most of it body, for the drip.
        const QString name(900, u'a');
        QVERIFY(m_service.addAccount({.email = QStringLiteral("secret"), .name = name}, QString()));
    }
    void init()
    {
        s_logged.clear();
        const auto record = [](QtMsgType, const QMessageLogContext &, const QString &line) {
            s_logged.append(line);
        };
        m_previous = qInstallMessageHandler(record);
        m_service.clear();
        m_session = std::make_unique<NSURLSession>(configuration());
    }
    void cleanup()
    {
        m_session.reset();
        qInstallMessageHandler(m_previous);
        QCOMPARE(s_logged, QStringList());
    }

private:
    static inline QStringList s_logged;
    QtMessageHandler m_previous = nullptr;
};
