// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/foundation/SessionFixture.h"

#include <map>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;

/// Which services a session connects to, and how.
class URLSessionConnectionTest : public SessionFixture {
    Q_OBJECT

private Q_SLOTS:
    void sendsNothingToTheWrongService()
    {
        const std::pair<sandbox::ConnectionKind, int> connectionKinds[] = {
            {sandbox::ConnectionKind::Expired, NSURLErrorServerCertificateHasBadDate},
            {sandbox::ConnectionKind::WrongHost, NSURLErrorServerCertificateUntrusted},
            {sandbox::ConnectionKind::Untrusted, NSURLErrorServerCertificateHasUnknownRoot},
            {sandbox::ConnectionKind::OldTls, NSURLErrorSecureConnectionFailed},
        };
        for (const auto &[kind, code] : connectionKinds) {
            m_service.stageConnection(kind);
            QCOMPARE(codeOf(), code);
        }
        const std::tuple<QByteArray, QByteArray, int> requests[] = {
            {"GET", "http://localhost/user.php", NSURLErrorUnsupportedURL},
            {"PUT", "https://localhost/user.php", NSURLErrorUnsupportedURL},
            {"GET", "file:///etc/passwd", NSURLErrorBadURL},
            {"GET", "", NSURLErrorBadURL},
        };
        for (const auto &[method, url, code] : requests) {
            QCOMPARE(codeOf(method, url), code);
        }
        m_service.stageConnection(sandbox::ConnectionKind::NoHandshake);
        const auto [file, address, time, length, module] = configuration(soon);
        const std::pair<NSURLSessionConfiguration, int> sessions[] = {
            {{file, address, time}, NSURLErrorTimedOut},
            {{file + u".not"_s, address, idle}, NSURLErrorSecureConnectionFailed},
            {{{}, address, idle}, NSURLErrorServerCertificateHasUnknownRoot}, // the system's own
            {{file, u"127.0.0.1:1"_s, idle}, NSURLErrorCannotConnectToHost},
        };
        for (const auto &[session, code] : sessions) {
            m_session = std::make_unique<NSURLSession>(session);
            QCOMPARE(codeOf(), code);
        }
        QCOMPARE(m_service.requests().size(), 0);
    }

    /// Every request uses a new connection, and surplus bytes of one never answer another.
    void connections()
    {
        const int before = m_service.connectionCount();
        const QByteArray stale = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nstale";
        m_service.stage("/user.php", Fault::surplus(stale), 3);
        for (int i = 0; i < 3; ++i) {
            Outcome outcome;
            send(outcome);
            outcome.done.wait();
            QCOMPARE(outcome.code, 0);
            QVERIFY(outcome.body.contains("userTavloID"));
        }
        QCOMPARE(m_service.connectionCount(), before + 3);
    }

    /// Connecting and answering each take less than the time-out, and together more.
    void connectingIsActivity()
    {
        m_session = std::make_unique<NSURLSession>(configuration(3500ms));
        m_service.stageConnection(sandbox::ConnectionKind::LateHandshake);
        m_service.stage("/user.php", Fault::delay(2s));
        QCOMPARE(codeOf(), 0);
    }

    /// The proxy does not exist, and the service's certificate does not name the host: the error
    /// code tells which of the two was tried.
    void proxies()
    {
        const QByteArray nobody = "http://127.0.0.1:1";
        const std::pair<std::map<const char *, QByteArray>, bool> rows[] = {
            {{}, false},
            {{{"https_proxy", nobody}}, true},
            {{{"HTTPS_PROXY", nobody}}, true},
            {{{"all_proxy", nobody}, {"https_proxy", ""}}, true},
            {{{"ALL_PROXY", nobody}}, true},
            {{{"http_proxy", nobody}}, false},
            {{{"https_proxy", nobody}, {"no_proxy", "a.example,wzt.example"}}, false},
            {{{"https_proxy", nobody}, {"NO_PROXY", "*"}}, false},
            {{{"https_proxy", nobody}, {"no_proxy", "a.example"}, {"NO_PROXY", "*"}}, true},
        };
        const auto codeOfOther = [this] { return codeOf("GET", "https://service.wzt.example/"); };
        for (const auto &[variables, isUsed] : rows) {
            for (const auto &[name, value] : variables) {
                qputenv(name, value);
            }
            m_session = std::make_unique<NSURLSession>(configuration());
            const int loopback = codeOf();
            for (const auto &[name, value] : variables) {
                qunsetenv(name);
            }
            // The environment is not read again.
            const int other = codeOfOther();
            qputenv("https_proxy", nobody);
            const int later = codeOfOther();
            qunsetenv("https_proxy");
            QCOMPARE(loopback, 0);
            QCOMPARE(other,
                     static_cast<int>(isUsed ? NSURLErrorCannotConnectToHost
                                             : NSURLErrorServerCertificateUntrusted));
            QCOMPARE(later, other);
        }
    }
};

WZT_TEST(URLSessionConnectionTest)
#include "URLSessionConnectionTest.moc"
