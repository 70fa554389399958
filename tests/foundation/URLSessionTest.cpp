// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/NSURLSession.h"
#include "sandbox/Sandbox.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QTest>

#include <latch>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;

namespace {

/// Long enough for a busy machine; what is to time out does so soon.
constexpr auto idle = 30s;
constexpr auto soon = 300ms;

/// What the completion of one task was called with, and how often.
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
            if (++calls == 1)
                done.count_down();
        };
    }
};

/// A body in zlib's format, which Content-Encoding calls "deflate".
Fault deflated(const QByteArray &body)
{
    return Fault::json(qCompress(body).mid(4)).withHeader("Content-Encoding", "deflate");
}

Fault rawReply(const QByteArray &rest)
{
    return Fault::raw("HTTP/1.1 200 OK\r\n" + rest);
}

struct Reply {
    const char *name;
    QByteArray method;
    Fault fault;
    int code = 0;
    QByteArray body = {}; // empty: not looked at
    int sendings = 1;
    std::chrono::milliseconds timeout = idle;
};

QStringList logged;

void record(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logged.append(line);
}

const QByteArray userURL = "https://localhost/user.php?userEmail=secret";

} // namespace

class URLSessionTest : public QObject {
    Q_OBJECT

    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;
    QtMessageHandler m_previous = nullptr;

    [[nodiscard]] NSURLSessionConfiguration
    configuration(std::chrono::milliseconds timeout = idle) const
    {
        return {m_service.caFile(), u"127.0.0.1:%1"_s.arg(m_service.port()), timeout};
    }

    void send(Outcome &outcome, const QByteArray &method = "GET", const QByteArray &url = userURL,
              bool repeatable = false)
    {
        NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(url);
        request.setHTTPMethod(method);
        request.setRepeatable(repeatable);
        m_session->dataTaskWithRequest(request, outcome.completion())->resume();
    }

    /// The code with which such a request ends.
    template <class... Arguments>
    [[nodiscard]] int codeOf(const Arguments &...arguments)
    {
        Outcome outcome;
        send(outcome, arguments...);
        outcome.done.wait();
        return outcome.code;
    }

private Q_SLOTS:
    void initTestCase()
    {
        // A long reply for the drip, most of it body.
        QVERIFY(m_service.addAccount({.email = u"secret"_s, .name = QString(900, u'a')}, u""_s));
    }

    void init()
    {
        logged.clear();
        m_previous = qInstallMessageHandler(record);
        m_service.clear();
        m_session = std::make_unique<NSURLSession>(configuration());
    }

    void cleanup()
    {
        m_session.reset();
        qInstallMessageHandler(m_previous);
        QCOMPARE(logged, QStringList());
    }

    void replies_data()
    {
        const QByteArray longest(qsizetype(16) * 1024 * 1024, 'a');
        const QByteArray manyFields = QByteArray("A: b\r\n").repeated(100000);
        const Fault uncompressed = Fault::json("plain").withHeader("Content-Encoding", "gzip");
        const Fault half = rawReply("Content-Length: 9\r\n\r\nhalf")
                               .ending(sandbox::Transmission::Ending::Silence);
        const Fault moved = Fault::redirectToPath("/login.php");
        const Fault otherPort = Fault::redirect("https://localhost:444/user.php");
        const int lost = NSURLErrorNetworkConnectionLost;
        const int tooLong = NSURLErrorDataLengthExceedsMaximum;
        const int bad = NSURLErrorBadServerResponse;
        addCases<Reply>({
            {"body of a POST", "POST", Fault::json("{}"), 0, "{}"},
            {"any status", "GET", Fault::json("no", 503), 0, "no"},
            {"slow drip", "GET", Fault::drip(50, 50ms), 0, {}, 1, 2s},
            {"compressed", "GET", deflated("hello"), 0, "hello"},
            {"longest body", "GET", deflated(longest)},
            {"body too long", "GET", deflated(longest + 'a'), tooLong},
            {"endless body", "GET", Fault::endless(), tooLong},
            {"endless header", "GET", rawReply(manyFields), tooLong},
            {"no compression at all", "GET", uncompressed, NSURLErrorCannotDecodeContentData},
            {"closed", "POST", Fault::close(), lost},
            {"reset", "GET", Fault::reset(), lost},
            {"length too great", "GET", Fault::wrongLength(5), lost},
            {"never answered", "GET", Fault::silence(), NSURLErrorTimedOut, {}, 1, soon},
            {"stops half-way", "GET", half, NSURLErrorTimedOut, {}, 1, soon},
            {"no HTTP", "GET", Fault::raw("hello\r\n\r\n"), bad},
            {"redirect", "GET", moved, 0, {}, 2},
            {"redirect of a POST", "POST", moved, bad},
            {"redirect 307 of a POST", "POST", Fault::redirectToPath("/login.php", 307), bad},
            {"redirect loop", "GET", Fault::redirectLoop(), NSURLErrorHTTPTooManyRedirects, {}, 21},
            {"redirect to http", "GET", Fault::redirectToHttp(), bad},
            {"redirect to another host", "GET", Fault::redirectToOtherHost(), bad},
            {"redirect to another port", "GET", otherPort, bad},
            {"redirect to a file", "GET", Fault::redirect("file:///etc/passwd"), bad},
        });
    }

    /// Over a session whose connections are warm: what was open already must not be used.
    void replies()
    {
        const auto &[name, method, fault, code, body, sendings, timeout] = currentCase<Reply>();
        m_session = std::make_unique<NSURLSession>(configuration(timeout));
        if (timeout == idle) {
            QCOMPARE(codeOf("GET", userURL, true), 0);
        }
        m_service.clear();
        m_service.stage("/user.php", fault, -1);

        Outcome outcome;
        send(outcome, method);
        outcome.done.wait();
        m_session.reset();
        QCOMPARE(outcome.code, code);
        QVERIFY(body.isEmpty() || outcome.body == body);
        QVERIFY(code == 0 || outcome.body.isEmpty());
        QCOMPARE(outcome.calls, 1);
        QVERIFY(outcome.thread != std::this_thread::get_id());
        QCOMPARE(m_service.requests().size(), sendings);
    }

    void nothingIsSentToTheWrongService()
    {
        const std::pair<sandbox::Reception, int> receptions[] = {
            {sandbox::Reception::Expired, NSURLErrorServerCertificateHasBadDate},
            {sandbox::Reception::WrongHost, NSURLErrorServerCertificateUntrusted},
            {sandbox::Reception::Untrusted, NSURLErrorServerCertificateHasUnknownRoot},
        };
        for (const auto &[reception, code] : receptions) {
            m_service.receive(reception);
            QCOMPARE(codeOf(), code);
        }
        const std::tuple<QByteArray, QByteArray, int> requests[] = {
            {"GET", "http://localhost/user.php", NSURLErrorUnsupportedURL},
            {"PUT", "https://localhost/user.php", NSURLErrorUnsupportedURL},
            {"GET", "file:///etc/passwd", NSURLErrorBadURL},
            {"GET", "", NSURLErrorBadURL},
        };
        for (const auto &[method, url, code] : requests)
            QCOMPARE(codeOf(method, url), code);
        m_service.receive(sandbox::Reception::Mute);
        const auto [file, address, time, length] = configuration(soon);
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

    /// Only what may be repeated uses an open connection, and survives that it was closed.
    void connections()
    {
        const int before = m_service.connectionCount();
        for (const bool repeatable : {false, true, true, false, true})
            QCOMPARE(codeOf("GET", userURL, repeatable), 0);
        QCOMPARE(m_service.connectionCount(), before + 2);
        m_service.closeIdleConnections();
        QCOMPARE(codeOf("GET", userURL, true), 0);
    }

    /// Requests in every stage, and one that is sent by a completion when all is over.
    void endsWithRequestsUnderWay()
    {
        NSURLSession::setSharedSession(m_session.get());
        m_service.stage("*", Fault::silence(), -1);
        m_service.receive(sandbox::Reception::Mute, 5);
        std::array<Outcome, 20> outcomes;
        for (Outcome &outcome : outcomes)
            send(outcome);
        Outcome late;
        const auto request = NSMutableURLRequest::requestWithURL(userURL);
        const auto sendAnother = [&](const QByteArray &, const auto &) {
            NSURLSession::sharedSession()
                ->dataTaskWithRequest(request, late.completion())
                ->resume();
        };
        m_session->dataTaskWithRequest(request, sendAnother)->resume();
        QTRY_VERIFY_WITH_TIMEOUT(m_service.requests().size() >= 5, 60000);
        m_session.reset();
        QVERIFY(!NSURLSession::sharedSession());
        for (const Outcome &outcome : outcomes) {
            QCOMPARE(outcome.calls, 1);
            QCOMPARE(outcome.code, int(NSURLErrorCancelled));
            QCOMPARE(outcome.thread, late.thread);
        }
        QCOMPARE(late.code, int(NSURLErrorCancelled));
    }
};

WZT_TEST(URLSessionTest)
#include "URLSessionTest.moc"
