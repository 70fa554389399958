// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/foundation/SessionFixture.h"

#include <array>
#include <future>

using namespace std::chrono_literals;
using sandbox::Fault;

/// The thread of a session, and its end.
class URLSessionThreadTest : public SessionFixture {
    Q_OBJECT

private Q_SLOTS:
    /// The thread reads buffered input in portions, so a later request completes first.
    void aFloodDelaysNoOtherRequest()
    {
        m_service.stage("/user.php", Fault::keyUpdates(50'000).after(500ms));
        Outcome flooded;
        send(flooded);
        QTRY_VERIFY_WITH_TIMEOUT(m_service.requests().size() == 1, 60000);
        // Blocks the thread while the buffer fills.
        send([](const QByteArray &, const auto &) { std::this_thread::sleep_for(2500ms); },
             "https://localhost/issues.php");
        QTRY_VERIFY_WITH_TIMEOUT(m_service.requests().size() == 2, 60000);
        Outcome other;
        send(other);
        other.done.wait();
        QCOMPARE(other.code, 0);
        QCOMPARE(flooded.calls, 0);
        m_session.reset();
        QCOMPARE(flooded.code, static_cast<int>(NSURLErrorCancelled));
    }

    /// Tasks that have not completed when the session detaches its thread never complete.
    void aBlockedCompletionDoesNotBlockTheEnd()
    {
        const auto held = std::make_shared<std::latch>(1);
        std::latch isHeld(1);
        send([held, &isHeld](const QByteArray &, const auto &) {
            isHeld.count_down();
            held->wait();
        });
        isHeld.wait();
        Outcome pending;
        const auto sign = std::make_shared<int>();
        send([sign, complete = pending.completion()](const QByteArray &data, const auto &failure) {
            complete(data, failure);
        });
        const auto end = std::async(std::launch::async, [this] { m_session.reset(); });
        const bool hasEnded = end.wait_for(60s) == std::future_status::ready;
        held->count_down();
        QVERIFY(hasEnded);
        QTRY_VERIFY_WITH_TIMEOUT(sign.use_count() == 1, 60000);
        QCOMPARE(pending.calls, 0);
    }

    /// Requests in every stage, and one that a completion sends during the end.
    void endsWithRequestsUnderWay()
    {
        NSURLSession::setSharedSession(m_session.get());
        m_service.stage("*", Fault::silence(), -1);
        m_service.stageConnection(sandbox::ConnectionKind::NoHandshake, 5);
        std::array<Outcome, 20> outcomes;
        for (Outcome &outcome : outcomes) {
            send(outcome);
        }
        Outcome late;
        const auto request = NSMutableURLRequest::requestWithURL(userURL);
        send([&](const QByteArray &, const auto &) {
            NSURLSession::sharedSession()
                ->dataTaskWithRequest(request, late.completion())
                ->resume();
        });
        QTRY_VERIFY_WITH_TIMEOUT(m_service.requests().size() >= 5, 60000);
        m_session.reset();
        QVERIFY(!NSURLSession::sharedSession());
        for (const Outcome &outcome : outcomes) {
            QCOMPARE(outcome.calls, 1);
            QCOMPARE(outcome.code, static_cast<int>(NSURLErrorCancelled));
            QCOMPARE(outcome.thread, late.thread);
        }
        QCOMPARE(late.code, static_cast<int>(NSURLErrorCancelled));
    }
};

WZT_TEST(URLSessionThreadTest)
#include "URLSessionThreadTest.moc"
