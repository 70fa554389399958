// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QElapsedTimer>
#include <QTest>

#include <curl/curl.h>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;
using sandbox::Reception;
using sandbox::Sandbox;

namespace {

const QByteArray target = "/user.php?userEmail=jo%40wzt.example";

struct Staged {
    const char *name; // the line
    int error;
    long status;
    QByteArray body;
    qint64 least = 0;
    QByteArray location = {};
};

} // namespace

/// Each fault, staged as a terminal stages it, and what a client then sees on the wire.
class FaultTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
        m_real = m_client.get(target).body;
    }
    void init() { m_service.clear(); }

    void stagedLine_data()
    {
        const QByteArray here = "localhost:" + QByteArray::number(m_service.port());
        const QByteArray other =
            "https://127.0.0.1:" + QByteArray::number(m_service.port()) + target;
        const qsizetype size = m_real.size();
        addCases<Staged>({
            {"* delay 150", CURLE_OK, 200, m_real, 150},
            {"/user.php silence", CURLE_OPERATION_TIMEDOUT, 0, {}, 800},
            {"/user.php close", CURLE_GOT_NOTHING, 0, {}},
            {"/user.php reset", CURLE_RECV_ERROR, 200, m_real.left(size / 2)},
            {"/user.php length 7", CURLE_PARTIAL_FILE, 200, m_real},
            {"/user.php length -7", CURLE_OK, 200, m_real.chopped(7)},
            {"/user.php length -100000", CURLE_OK, 200, {}},
            {"/user.php drip 50 20", CURLE_OK, 200, m_real, 120},
            {"/user.php status 503", CURLE_OK, 503, m_real},
            {"/user.php json 418 '{\"result\": \"a  b\"}'", CURLE_OK, 418,
             "{\"result\": \"a  b\"}"},
            {R"(/user.php raw 'HTTP/1.1 299 \xC3\xA9'\r\n\r\n\x41\\\q)", CURLE_OK, 299, R"(A\\q)"},
            {"/user.php raw nonsense", CURLE_UNSUPPORTED_PROTOCOL, 0, {}},
            {"/user.php endless", CURLE_WRITE_ERROR, 200, {}},
            {"/user.php redirect loop", CURLE_OK, 302, {}, 0, target},
            {"/user.php redirect http", CURLE_OK, 302, {}, 0, "http://" + here + target},
            {"/user.php redirect host", CURLE_OK, 302, {}, 0, other},
            {"/user.php redirect /x.php",
             CURLE_OK,
             302,
             {},
             0,
             "/x.php?userEmail=jo%40wzt.example"},
            {"connection expired", CURLE_PEER_FAILED_VERIFICATION, 0, {}},
            {"connection wrong-host 1", CURLE_PEER_FAILED_VERIFICATION, 0, {}},
            {"connection untrusted", CURLE_PEER_FAILED_VERIFICATION, 0, {}},
            {"connection mute", CURLE_OPERATION_TIMEDOUT, 0, {}, 800},
            {"/user.php redirect https://a.example/", CURLE_OK, 302, {}, 0, "https://a.example/"},
        });
    }

    void stagedLine()
    {
        const auto &[line, error, status, body, least, location] = currentCase<Staged>();
        QCOMPARE(m_service.stageLine(QString::fromLatin1(line)), QString());
        Client client = fresh();
        const Answer answer = client.send(
            {.target = target, .timeout = error == CURLE_OPERATION_TIMEDOUT ? 800 : 20'000});
        // What is cut off may end in either way, as the machine's buffers have it.
        if (error != CURLE_UNSUPPORTED_PROTOCOL) {
            QCOMPARE(answer.error, error);
            QCOMPARE(answer.status, status);
        } else {
            QVERIFY(answer.error != CURLE_OK);
        }
        if (error != CURLE_WRITE_ERROR)
            QCOMPARE(answer.body, body);
        QVERIFY(answer.milliseconds >= least);
        QCOMPARE(answer.head.contains(QByteArray("Location: " + location + "\r\n")),
                 !location.isEmpty());
        QCOMPARE(client.get(target).body, m_real);
    }

    void badLineStagesNothing()
    {
        for (const char *line :
             {"", "clear now", "login.php close", "/user.php", "/user.php sulk",
              "/user.php close x", "/user.php close 0", "/user.php close 1 1", "/user.php delay",
              "/user.php delay soon", "/user.php delay -1", "/user.php drip 0 5",
              "/user.php status 99", "/user.php json 200", "/user.php redirect elsewhere",
              "connection", "connection odd", "connection mute x"})
            QVERIFY2(!m_service.stageLine(QString::fromLatin1(line)).isEmpty(), line);
        QCOMPARE(fresh().get(target).body, m_real);
    }

    void replacedAnswerLeavesAccountsAlone()
    {
        const QByteArray registration =
            "/register.php?userEmail=a@wzt.example&userName=A&userPassword="
            + Sandbox::digestOf(u"a"_s);
        for (const Fault &fault : {Fault::close(), Fault::json("{}"), Fault::redirectLoop()}) {
            m_service.stage("/register.php", fault);
            fresh().get(registration); // over an open connection it would be sent again
            QCOMPARE(m_service.accountCount(), 1);
        }
        m_service.stage("/register.php", Fault::status(500));
        m_client.get(registration);
        QCOMPARE(m_service.accountCount(), 2);
    }

    void faultsAreUsedUpInOrderAndByPath()
    {
        m_service.stage("/user.php", Fault::status(501), 2);
        m_service.stage("/login.php", Fault::status(502));
        m_service.stage("*", Fault::status(503), -1);
        QList<long> statuses;
        for (const char *path :
             {"/user.php", "/none.php", "/user.php", "/user.php", "/login.php", "/login.php"}) {
            statuses.append(m_client.get(path).status);
        }
        QCOMPARE(statuses, (QList<long>{501, 503, 501, 503, 502, 503}));
        QCOMPARE(m_service.requests().size(), 6);
        QCOMPARE(m_service.stageLine(u"clear"_s), QString());
        QCOMPARE(m_client.get(target).status, 200);
        QCOMPARE(m_service.requests().size(), 7);
    }

    void endIsQuickWhateverHangs()
    {
        auto service = std::make_unique<Sandbox>();
        service->stage("/0", Fault::silence());
        service->stage("/1", Fault::delay(1h));
        service->stage("/2", Fault::drip(1, 1h));
        service->stage("/3", Fault::endless().after(1h));
        std::vector<std::thread> threads;
        const auto call = [&](const QByteArray &path) {
            threads.emplace_back(
                [path, client = std::make_shared<Client>(service->port(), service->caFile())] {
                    client->get(path);
                });
        };
        for (const char *path : {"/0", "/1", "/2", "/3"})
            call(path);
        QTRY_COMPARE(service->requests().size(), 4);
        service->receive(Reception::Mute);
        call("/4");
        QTRY_COMPARE(service->connectionCount(), 5);
        QElapsedTimer timer;
        timer.start();
        service.reset();
        QVERIFY(timer.elapsed() < 2000);
        for (std::thread &each : threads)
            each.join();
        QVERIFY(timer.elapsed() < 5000);
    }

private:
    Client fresh() const { return {m_service.port(), m_service.caFile()}; }

    Sandbox m_service;
    Client m_client{m_service.port(), m_service.caFile()};
    QByteArray m_real;
};

WZT_TEST(FaultTest)
#include "FaultTest.moc"
