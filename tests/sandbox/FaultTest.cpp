// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "sandbox/ControlSocket.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"

#include <QTemporaryDir>

#include <curl/curl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

/// The commands that stage faults. The tests of the URL session check the faults' details.
class FaultTest : public QObject {
    Q_OBJECT

    sandbox::Sandbox m_service;

    /// The answer on a new connection.
    [[nodiscard]] Answer answer(long timeout = 20'000) const
    {
        return Client(m_service.port(), m_service.caFile())
            .send("GET", "/user.php?userEmail=jo%40wzt.example", timeout);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_service.addAccount({.email = u"jo@wzt.example"_s, .name = u"Jo"_s}, u"secret"_s);
    }

    void stagedLines()
    {
        const std::tuple<const char *, int, long> rows[] = {
            {"* delay 1", CURLE_OK, 200},
            {"* delay 5000", CURLE_OPERATION_TIMEDOUT, 0},
            {"/user.php silence", CURLE_OPERATION_TIMEDOUT, 0},
            {"/user.php close", CURLE_GOT_NOTHING, 0},
            {"/user.php reset", CURLE_RECV_ERROR, 200},
            {"/user.php length 7", CURLE_PARTIAL_FILE, 200},
            {"/user.php length -100000", CURLE_OK, 200},
            {"/user.php drip 50 20", CURLE_OK, 200},
            {"/user.php drip 1 5000", CURLE_OPERATION_TIMEDOUT, 0},
            {"/user.php gzip 3", CURLE_OK, 200},
            {"/user.php surplus x", CURLE_OK, 200},
            {"/user.php key-updates 9", CURLE_OK, 200},
            {"/user.php status 503", CURLE_OK, 503},
            {"/user.php endless", CURLE_WRITE_ERROR, 200},
            {"/user.php redirect loop", CURLE_OK, 302},
            {"/user.php redirect further", CURLE_OK, 302},
            {"/user.php redirect http", CURLE_OK, 302},
            {"/user.php redirect host", CURLE_OK, 302},
            {"/user.php redirect /x.php", CURLE_OK, 302},
            {"/user.php redirect https://a.example/", CURLE_OK, 302},
            {"connection expired", CURLE_PEER_FAILED_VERIFICATION, 0},
            {"connection wrong-host 1", CURLE_PEER_FAILED_VERIFICATION, 0},
            {"connection untrusted", CURLE_PEER_FAILED_VERIFICATION, 0},
            {"connection old-tls", CURLE_SSL_CONNECT_ERROR, 0},
            {"connection late", CURLE_OK, 200},
            {"connection mute", CURLE_OPERATION_TIMEDOUT, 0},
        };
        for (const auto &[line, error, status] : rows) {
            QCOMPARE(m_service.stageLine(QString::fromLatin1(line)), QString());
            const bool isLate = error == CURLE_OPERATION_TIMEDOUT;
            const Answer seen = answer(isLate ? 500 : 20'000);
            QVERIFY2(seen.error == error && (isLate || seen.status == status), line);
            QVERIFY2(answer().isUser(), line); // staged once
        }
    }

    /// The error codes for these depend on the version of libcurl.
    void stagedCuts()
    {
        for (const char *line : {"/user.php cut 20", "/user.php unmeasured"}) {
            QCOMPARE(m_service.stageLine(QString::fromLatin1(line)), QString());
        }
        const Answer cut = answer();
        QVERIFY(cut.head.startsWith("HTTP/1.1 200 OK\r\n") && !cut.head.contains("Content-"));
        const Answer unmeasured = answer();
        QVERIFY(unmeasured.isUser() && !unmeasured.head.contains("Content-Length"));
    }

    void silentClientsDelayNoOther()
    {
        const QTemporaryDir folder;
        sandbox::ControlSocket control;
        QCOMPARE(control.open(folder.path(), [](const QString &line) { return line; }), QString());
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = folder.filePath(u"control"_s).toLocal8Bit();
        std::ranges::copy(path, address.sun_path);
        std::array<int, 3> clients{};
        for (int &client : clients) {
            client = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
            QCOMPARE(
                ::connect(client, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
            QCOMPARE(::send(client, "ha", 2, MSG_NOSIGNAL), 2);
        }
        QCOMPARE(sandbox::ControlSocket::send(folder.path(), u"in time"_s), u"error: in time"_s);
        for (const int client : clients) {
            char answer[64];
            // The silent clients are still connected.
            QCOMPARE(::send(client, "lf\n", 3, MSG_NOSIGNAL), 3);
            const ssize_t length = ::recv(client, answer, sizeof answer, 0);
            QCOMPARE(QByteArray(answer, std::max<ssize_t>(length, 0)), "error: half\n");
            ::close(client);
        }
    }

    void stagedForEverUntilCleared()
    {
        for (const QString &line : {u"* status 500"_s, u"* status 501 -1"_s}) {
            QCOMPARE(m_service.stageLine(line), QString());
        }
        for (const long status : {500, 501, 501}) {
            QCOMPARE(answer().status, status);
        }
        QCOMPARE(m_service.stageLine(u"clear"_s), QString());
        QCOMPARE(answer().status, 200);
    }

    void stagedBytes()
    {
        m_service.stageLine(u"/user.php json 418 '{\"a\": \"b  c\"}'"_s);
        QCOMPARE(answer().body, "{\"a\": \"b  c\"}");
        m_service.stageLine(uR"(/user.php raw 'HTTP/1.1 299 \xC3\xA9'\r\n\r\n\x41\\\q)"_s);
        QCOMPARE(answer().body, R"(A\\q)");
    }

    void badLineStagesNothing()
    {
        for (const char *line :
             {"", "clear now", "login.php close", "/user.php", "/user.php sulk",
              "/user.php close x", "/user.php close 0", "/user.php close 1 1", "/user.php delay",
              "/user.php delay -1", "/user.php drip 0 5", "/user.php cut -1", "/user.php gzip",
              "/user.php status 99", "/user.php json 200", "/user.php redirect elsewhere",
              "connection", "connection odd", "connection mute x"}) {
            QVERIFY2(!m_service.stageLine(QString::fromLatin1(line)).isEmpty(), line);
        }
        QVERIFY(answer().isUser());
    }
};

WZT_TEST(FaultTest)
#include "FaultTest.moc"
