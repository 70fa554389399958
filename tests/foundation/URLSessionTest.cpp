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

constexpr auto idle = 300ms;

/// What the completion of one task was called with, and how often.
struct Outcome {
    QByteArray body;
    std::optional<NSError> error;
    std::atomic<int> calls = 0;
    std::thread::id thread;
    std::latch done{1};

    NSURLSessionDataTask::Completion completion()
    {
        return [this](const QByteArray &data, const std::optional<NSError> &failure) {
            body = data;
            error = failure;
            thread = std::this_thread::get_id();
            if (++calls == 1) {
                done.count_down();
            }
        };
    }
    [[nodiscard]] int code() const { return error ? error->code : 0; }
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
    Fault fault;
    int code = 0;
    QByteArray body = {}; // empty: not looked at
    QByteArray method = "GET";
    int sendings = 1;
};

QStringList logged;

void record(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logged.append(line);
}

} // namespace

class URLSessionTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<sandbox::Sandbox> m_service;
    std::unique_ptr<NSURLSession> m_session;
    QtMessageHandler m_previous = nullptr;

    [[nodiscard]] NSURLSessionConfiguration configuration() const
    {
        NSURLSessionConfiguration result;
        result.certificateAuthorityFile = m_service->caFile();
        result.connectTo = u"127.0.0.1:%1"_s.arg(m_service->port());
        result.timeoutIntervalForRequest = idle;
        return result;
    }

    void send(Outcome &outcome, const QByteArray &method = "GET",
              const QByteArray &url = "https://localhost/user.php?userEmail=secret",
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
        return outcome.code();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_service = std::make_unique<sandbox::Sandbox>();
        QVERIFY2(m_service->isRunning(), qPrintable(m_service->errorString()));
        // A long reply for the drip, most of it body.
        QVERIFY(m_service->addAccount({.email = u"secret"_s, .name = QString(900, u'a')}, u""_s));
    }

    void init()
    {
        logged.clear();
        m_previous = qInstallMessageHandler(record);
        m_service->clear();
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
        const qsizetype longest = qsizetype(16) * 1024 * 1024;
        const QByteArray pieces = "Transfer-Encoding: chunked\r\n\r\n5\r\nhello\r\n";
        addCases<Reply>({
            {"body", Fault::json("{}"), 0, "{}"},
            {"body of a POST", Fault::json("{}"), 0, "{}", "POST"},
            {"any status", Fault::json("no", 503), 0, "no"},
            {"no content", Fault::raw("HTTP/1.1 204 No\r\n\r\n")},
            {"slow drip", Fault::drip(50, 30ms)},
            {"late", Fault::json("x").after(idle / 2), 0, "x"},
            {"compressed", deflated("hello"), 0, "hello"},
            {"chunked", rawReply(pieces + "0\r\n\r\n"), 0, "hello"},
            {"ended by the connection", Fault::json("x").withoutLength(), 0, "x"},
            {"longest body", deflated(QByteArray(longest, 'a'))},
            {"body too long", deflated(QByteArray(longest + 1, 'a')),
             NSURLErrorDataLengthExceedsMaximum},
            {"endless body", Fault::endless(), NSURLErrorDataLengthExceedsMaximum},
            {"endless header", rawReply(QByteArray("A: b\r\n").repeated(100000)),
             NSURLErrorDataLengthExceedsMaximum},
            {"no compression at all",
             Fault::json("not compressed at all").withHeader("Content-Encoding", "gzip"),
             NSURLErrorCannotDecodeContentData},
            {"closed", Fault::close(), NSURLErrorNetworkConnectionLost},
            {"closed, POST", Fault::close(), NSURLErrorNetworkConnectionLost, {}, "POST"},
            {"reset", Fault::reset(), NSURLErrorNetworkConnectionLost},
            {"length too great", Fault::wrongLength(5), NSURLErrorNetworkConnectionLost},
            {"chunk missing", rawReply(pieces), NSURLErrorNetworkConnectionLost},
            {"never answered", Fault::silence(), NSURLErrorTimedOut},
            {"stops half-way",
             rawReply("Content-Length: 9\r\n\r\nhalf")
                 .ending(sandbox::Transmission::Ending::Silence),
             NSURLErrorTimedOut},
            {"no HTTP", Fault::raw("hello\r\n\r\n"), NSURLErrorBadServerResponse},
            {"redirect", Fault::redirectToPath("/login.php"), 0, {}, "GET", 2},
            {"redirect 308", Fault::redirectToPath("/login.php", 308), 0, {}, "GET", 2},
            {"redirect of a POST",
             Fault::redirectToPath("/login.php"),
             NSURLErrorBadServerResponse,
             {},
             "POST"},
            {"redirect 307 of a POST",
             Fault::redirectToPath("/login.php", 307),
             NSURLErrorBadServerResponse,
             {},
             "POST"},
            {"redirect loop", Fault::redirectLoop(), NSURLErrorHTTPTooManyRedirects, {}, "GET", 21},
            {"redirect to http", Fault::redirectToHttp(), NSURLErrorBadServerResponse},
            {"redirect to another host", Fault::redirectToOtherHost(), NSURLErrorBadServerResponse},
            {"redirect to another port", Fault::redirect("https://localhost:444/user.php"),
             NSURLErrorBadServerResponse},
            {"redirect to a file", Fault::redirect("file:///etc/passwd"),
             NSURLErrorBadServerResponse},
        });
    }

    /// Over a session whose connections are warm: what was open already must not be used.
    void replies()
    {
        const auto &[name, fault, code, body, method, sendings] = currentCase<Reply>();
        QCOMPARE(codeOf("GET", "https://localhost/user.php", true), 0);
        m_service->clear();
        m_service->stage("/user.php", fault, -1);

        Outcome outcome;
        send(outcome, method);
        outcome.done.wait();
        m_session.reset();
        QCOMPARE(outcome.code(), code);
        QVERIFY(body.isEmpty() || outcome.body == body);
        QVERIFY(!outcome.error || outcome.body.isEmpty());
        QCOMPARE(outcome.calls, 1);
        QVERIFY(outcome.thread != std::this_thread::get_id());
        QCOMPARE(m_service->requests().size(), sendings);
    }

    void certificates()
    {
        const std::pair<sandbox::Reception, int> rows[] = {
            {sandbox::Reception::Expired, NSURLErrorServerCertificateHasBadDate},
            {sandbox::Reception::WrongHost, NSURLErrorServerCertificateUntrusted},
            {sandbox::Reception::Untrusted, NSURLErrorServerCertificateHasUnknownRoot},
            {sandbox::Reception::Mute, NSURLErrorTimedOut},
        };
        for (const auto &[reception, code] : rows) {
            m_service->receive(reception);
            QCOMPARE(codeOf(), code);
        }
        NSURLSessionConfiguration missing = configuration();
        missing.certificateAuthorityFile += u".not"_s;
        NSURLSessionConfiguration systemsOwn = configuration();
        systemsOwn.certificateAuthorityFile.clear();
        for (const auto &trust : {missing, systemsOwn}) {
            m_session = std::make_unique<NSURLSession>(trust);
            QVERIFY(codeOf() != 0);
        }
        QCOMPARE(m_service->requests().size(), 0);
    }

    void requestsThatCannotBeSent()
    {
        const std::tuple<QByteArray, QByteArray, int> rows[] = {
            {"GET", "http://localhost/user.php", NSURLErrorUnsupportedURL},
            {"GET", "file:///etc/passwd", NSURLErrorBadURL},
            {"GET", "", NSURLErrorBadURL},
            {"GET", "https://", NSURLErrorBadURL},
            {"PUT", "https://localhost/user.php", NSURLErrorUnsupportedURL},
        };
        for (const auto &[method, url, code] : rows)
            QCOMPARE(codeOf(method, url), code);
        NSURLSessionConfiguration nobody = configuration();
        nobody.connectTo = u"127.0.0.1:1"_s;
        m_session = std::make_unique<NSURLSession>(nobody);
        QCOMPARE(codeOf(), int(NSURLErrorCannotConnectToHost));
        QCOMPARE(m_service->requests().size(), 0);
    }

    /// Only what may be repeated uses an open connection, and survives that it was closed.
    void connections()
    {
        const int before = m_service->connectionCount();
        for (const bool repeatable : {false, true, true, false, true})
            QCOMPARE(codeOf("GET", "https://localhost/user.php", repeatable), 0);
        QCOMPARE(m_service->connectionCount(), before + 2);
        m_service->closeIdleConnections();
        QCOMPARE(codeOf("GET", "https://localhost/user.php", true), 0);
    }

    /// Requests in every stage, and one that is sent by a completion when all is over.
    void endsWithRequestsUnderWay()
    {
        NSURLSession::setSharedSession(m_session.get());
        m_service->stage("*", Fault::silence(), -1);
        m_service->receive(sandbox::Reception::Mute, 5);
        std::array<Outcome, 20> outcomes;
        for (Outcome &outcome : outcomes)
            send(outcome);
        Outcome late;
        const auto request = NSMutableURLRequest::requestWithURL("https://localhost/user.php");
        m_session
            ->dataTaskWithRequest(request,
                                  [&](const QByteArray &, const auto &) {
                                      NSURLSession::sharedSession()
                                          ->dataTaskWithRequest(request, late.completion())
                                          ->resume();
                                  })
            ->resume();
        QTRY_VERIFY(m_service->requests().size() >= 5);
        QElapsedTimer time;
        time.start();
        m_session.reset();
        QVERIFY(time.elapsed() < idle.count() / 2);
        QVERIFY(!NSURLSession::sharedSession());
        for (const Outcome &outcome : outcomes) {
            QCOMPARE(outcome.calls, 1);
            QCOMPARE(outcome.code(), int(NSURLErrorCancelled));
            QVERIFY(outcome.thread == late.thread && outcome.body.isEmpty());
        }
        QCOMPARE(late.code(), int(NSURLErrorCancelled));
    }
};

WZT_TEST(URLSessionTest)
#include "URLSessionTest.moc"
