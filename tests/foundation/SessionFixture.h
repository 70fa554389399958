// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

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
    configuration(std::chrono::milliseconds timeout = idle) const;
    void send(Outcome &outcome, const QByteArray &method = "GET", const QByteArray &url = userURL);
    /// The error code of such a request, 0 for success.
    [[nodiscard]] int codeOf(const QByteArray &method = "GET", const QByteArray &url = userURL);

    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    QtMessageHandler m_previous = nullptr;
};
