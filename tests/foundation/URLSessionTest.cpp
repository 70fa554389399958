// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "platform/foundation/url/NSURLSession.h"
#include "sandbox/Sandbox.h"
#include "sandbox/http/Gzip.h"

#include <future>
#include <latch>
#include <map>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;
using sandbox::Transmission;

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
            if (++calls == 1) {
                done.count_down();
            }
        };
    }
};

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

    void send(Outcome &outcome, const QByteArray &method = "GET", const QByteArray &url = userURL)
    {
        NSMutableURLRequest request = NSMutableURLRequest::requestWithURL(url);
        request.setHTTPMethod(method);
        const auto task = m_session->dataTaskWithRequest(request, outcome.completion());
        task->resume();
        task->resume(); // sends nothing more
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
        const QByteArray longest(qsizetype{16} * 1024 * 1024, 'a');
        const QByteArray manyFields = QByteArray("A: b\r\n").repeated(100000);
        const QByteArray nothing = sandbox::gzipped({});
        const QByteArray nothings =
            nothing.repeated(qsizetype{64} * 1024 * 1024 / nothing.size() + 1);
        const auto coded = [](const QByteArray &body, const QByteArray &coding) {
            return Fault::json(body).withHeader("Content-Encoding", coding);
        };
        const Fault unmeasured = Fault().withoutLength();
        const Fault framed =
            rawReply("Transfer-Encoding: gzip\r\n\r\n" + sandbox::gzipped("hello").chopped(1));
        const Fault interim = Fault::raw("HTTP/1.1 103 Early Hints\r\n\r\n");
        const Fault half =
            rawReply("Content-Length: 9\r\n\r\nhalf").ending(Transmission::Ending::Silence);
        const Fault moved = Fault::redirectToPath("/login.php");
        const Fault otherPort = Fault::redirect("https://localhost:444/user.php");
        const int lost = NSURLErrorNetworkConnectionLost;
        const int tooLong = NSURLErrorDataLengthExceedsMaximum;
        const int bad = NSURLErrorBadServerResponse;
        const int undecodable = NSURLErrorCannotDecodeContentData;
        const int tooMany = NSURLErrorHTTPTooManyRedirects;
        const Fault sameElsewise =
            Fault::redirect("https://LOCALHOST:443/user.php?userEmail=secret#again");
        addCases<Reply>({
            {"body of a POST", "POST", Fault::json("{}"), 0, "{}"},
            {"any status", "GET", Fault::json("no", 503), 0, "no"},
            {"slow drip", "GET", Fault::drip(50, 50ms), 0, {}, 1, 2s},
            {"compressed", "GET", Fault::json("hello").compressed(), 0, "hello"},
            {"compressed and cut", "GET", Fault::json("hello").compressed(1), undecodable},
            {"compressed and cut away", "GET", Fault::json("hello").compressed(99), undecodable},
            {"strung together", "GET",
             coded(sandbox::gzipped("hel") + sandbox::gzipped("lo"), "x-gzip"), 0, "hello"},
            {"longest body", "GET", Fault::json(longest).compressed()},
            {"body too long", "GET", Fault::json(longest + 'a').compressed(), tooLong},
            {"decodes to nothing", "GET", coded(nothings, "gzip"), tooLong},
            {"endless body", "GET", Fault::endless(), tooLong},
            {"endless header", "GET", rawReply(manyFields), tooLong},
            {"no compression at all", "GET", coded("plain", "gzip"), undecodable},
            {"junk behind the compressed", "GET", coded(nothing + "junk", "gzip"), undecodable},
            {"compression of another kind", "GET", coded("hello", "br"), undecodable},
            {"compressed for the way", "GET", framed, undecodable},
            {"end without a length", "GET", unmeasured},
            {"end without a farewell", "GET", unmeasured.ending(Transmission::Ending::Cut), lost},
            {"interim head alone", "GET", interim, lost},
            {"closed", "POST", Fault::close(), lost},
            {"reset", "GET", Fault::reset(), lost},
            {"length too great", "GET", Fault::wrongLength(5), lost},
            {"never answered", "GET", Fault::silence(), NSURLErrorTimedOut, {}, 1, soon},
            {"stops half-way", "GET", half, NSURLErrorTimedOut, {}, 1, soon},
            {"no HTTP", "GET", Fault::raw("hello\r\n\r\n"), bad},
            {"redirect", "GET", moved, 0, {}, 2},
            {"redirect of a POST", "POST", moved, bad},
            {"redirect 307 of a POST", "POST", Fault::redirectToPath("/login.php", 307), bad},
            {"redirect to itself", "GET", Fault::redirectLoop(), tooMany},
            {"redirect to itself in other words", "GET", sameElsewise, tooMany},
            {"redirects without end", "GET", Fault::redirectFurther(), tooMany, {}, 21},
            {"redirect to http", "GET", Fault::redirectToHttp(), bad},
            {"redirect to another host", "GET", Fault::redirectToOtherHost(), bad},
            {"redirect to another port", "GET", otherPort, bad},
            {"redirect to a file", "GET", Fault::redirect("file:///etc/passwd"), bad},
        });
    }

    void replies()
    {
        const auto &[name, method, fault, code, body, sendings, timeout] = currentCase<Reply>();
        m_session = std::make_unique<NSURLSession>(configuration(timeout));
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
            {sandbox::Reception::OldTls, NSURLErrorSecureConnectionFailed},
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
        for (const auto &[method, url, code] : requests) {
            QCOMPARE(codeOf(method, url), code);
        }
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

    /// Whatever is missing of a reply at its end, and however the connection is closed then. Only
    /// of a body that nothing but a close in good order ends nobody can tell.
    void truncations()
    {
        const std::tuple<QByteArray, QByteArray, bool> replies[] = {
            {"Content-Length: 2\r\n", "{}", false},
            {"Transfer-Encoding: chunked\r\n", "2\r\n{}\r\n0\r\n\r\n", false},
            {"Content-Encoding: gzip\r\n", sandbox::gzipped("{}"), false},
            {"", "{}", true},
        };
        for (const auto ending : {Transmission::Ending::Close, Transmission::Ending::Cut}) {
            for (const auto &[fields, body, endsWithClose] : replies) {
                const QByteArray head = "HTTP/1.1 200 OK\r\n" + fields + "\r\n";
                const QByteArray reply = head + body;
                const bool needsFarewell =
                    !fields.contains("Length") && !fields.contains("chunked");
                for (qsizetype length = 0; length <= reply.size(); ++length) {
                    const bool isWhole =
                        length == reply.size() || (endsWithClose && length >= head.size());
                    const bool isFine =
                        isWhole && (!needsFarewell || ending == Transmission::Ending::Close);
                    const QByteArray sent = reply.left(length);
                    // All but a line feed that libcurl does without.
                    if (sent.endsWith("0\r\n\r")) {
                        continue;
                    }
                    m_service.stage("/user.php", Fault::raw(sent).ending(ending));
                    const int code = codeOf("POST");
                    QVERIFY2((code == 0) == isFine,
                             QByteArray(sent + ": " + QByteArray::number(code)).constData());
                }
            }
        }
    }

    /// Every request has a connection of its own, and what is left on it is nobody's answer.
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

    /// Both take less than the time-out, and together more.
    void connectingIsActivity()
    {
        m_session = std::make_unique<NSURLSession>(configuration(3500ms));
        m_service.receive(sandbox::Reception::Late);
        m_service.stage("/user.php", Fault::delay(2s));
        QCOMPARE(codeOf(), 0);
    }

    /// A proxy where nobody listens, and a host that the service is not: the code tells which of
    /// the two was tried.
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

    /// What a server has sent in store is read by and by: who asked later is answered first.
    void aFloodHoldsUpNothing()
    {
        m_service.stage("/user.php", Fault::keyUpdates(50'000).after(500ms));
        Outcome flooded;
        send(flooded);
        QTRY_VERIFY_WITH_TIMEOUT(m_service.requests().size() == 1, 60000);
        // Keeps the thread from reading while the store fills.
        const auto request = NSMutableURLRequest::requestWithURL("https://localhost/issues.php");
        const auto hold = [](const QByteArray &, const auto &) {
            std::this_thread::sleep_for(2500ms);
        };
        m_session->dataTaskWithRequest(request, hold)->resume();
        QTRY_VERIFY_WITH_TIMEOUT(m_service.requests().size() == 2, 60000);
        Outcome other;
        send(other);
        other.done.wait();
        QCOMPARE(other.code, 0);
        QCOMPARE(flooded.calls, 0);
        m_session.reset();
        QCOMPARE(flooded.code, static_cast<int>(NSURLErrorCancelled));
    }

    /// What has not completed when the session gives its thread up never does.
    void aCompletionThatNeverReturnsDoesNotHoldUpTheEnd()
    {
        const auto held = std::make_shared<std::latch>(1);
        std::latch isHeld(1);
        const auto request = NSMutableURLRequest::requestWithURL(userURL);
        m_session
            ->dataTaskWithRequest(request,
                                  [held, &isHeld](const QByteArray &, const auto &) {
                                      isHeld.count_down();
                                      held->wait();
                                  })
            ->resume();
        isHeld.wait();
        Outcome pending;
        const auto sign = std::make_shared<int>();
        m_session
            ->dataTaskWithRequest(request,
                                  [sign, complete = pending.completion()](const QByteArray &data,
                                                                          const auto &failure) {
                                      complete(data, failure);
                                  })
            ->resume();
        const auto end = std::async(std::launch::async, [this] { m_session.reset(); });
        const bool hasEnded = end.wait_for(60s) == std::future_status::ready;
        held->count_down();
        QVERIFY(hasEnded);
        QTRY_VERIFY_WITH_TIMEOUT(sign.use_count() == 1, 60000);
        QCOMPARE(pending.calls, 0);
    }

    /// Requests in every stage, and one that is sent by a completion when all is over.
    void endsWithRequestsUnderWay()
    {
        NSURLSession::setSharedSession(m_session.get());
        m_service.stage("*", Fault::silence(), -1);
        m_service.receive(sandbox::Reception::Mute, 5);
        std::array<Outcome, 20> outcomes;
        for (Outcome &outcome : outcomes) {
            send(outcome);
        }
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
            QCOMPARE(outcome.code, static_cast<int>(NSURLErrorCancelled));
            QCOMPARE(outcome.thread, late.thread);
        }
        QCOMPARE(late.code, static_cast<int>(NSURLErrorCancelled));
    }
};

WZT_TEST(URLSessionTest)
#include "URLSessionTest.moc"
