// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/Gzip.h"
#include "tests/foundation/SessionFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;
using sandbox::Transmission;

namespace {

Fault rawReply(const QByteArray &rest)
{
    return Fault::raw("HTTP/1.1 200 OK\r\n" + rest);
}

struct Reply {
    const char *name;
    QByteArray method;
    Fault fault;
    int code = 0;
    QByteArray body = {}; // empty: not checked
    int sendings = 1;
    std::chrono::milliseconds timeout = std::chrono::seconds(30);
};

} // namespace

/// The replies of a service, complete and broken.
class URLSessionTest : public SessionFixture {
    Q_OBJECT

    /// Sends the request of the current row and checks its outcome.
    void checkReply()
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

private Q_SLOTS:
    void bodies_data()
    {
        const int undecodable = NSURLErrorCannotDecodeContentData;
        const int tooLong = NSURLErrorDataLengthExceedsMaximum;
        const QByteArray longest(qsizetype{16} * 1024 * 1024, 'a');
        const QByteArray nothing = sandbox::gzipped({});
        const QByteArray nothings =
            nothing.repeated(qsizetype{64} * 1024 * 1024 / nothing.size() + 1);
        const auto coded = [](const QByteArray &body, const QByteArray &coding) {
            return Fault::json(body).withHeader("Content-Encoding", coding);
        };
        const Fault framed =
            rawReply("Transfer-Encoding: gzip\r\n\r\n" + sandbox::gzipped("hello").chopped(1));
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
            {"no compression at all", "GET", coded("plain", "gzip"), undecodable},
            {"junk behind the compressed", "GET", coded(nothing + "junk", "gzip"), undecodable},
            {"compression of another kind", "GET", coded("hello", "br"), undecodable},
            {"compressed for the way", "GET", framed, undecodable},
        });
    }

    void bodies() { checkReply(); }

    void brokenReplies_data()
    {
        const int lost = NSURLErrorNetworkConnectionLost;
        const int tooLong = NSURLErrorDataLengthExceedsMaximum;
        const int bad = NSURLErrorBadServerResponse;
        const QByteArray manyFields = QByteArray("A: b\r\n").repeated(100000);
        const Fault unmeasured = Fault().withoutLength();
        const Fault bodiless =
            Fault::raw("HTTP/1.1 204 No Content\r\nContent-Encoding: gzip\r\n\r\n");
        const Fault interim = Fault::raw("HTTP/1.1 103 Early Hints\r\n\r\n");
        const Fault half =
            rawReply("Content-Length: 9\r\n\r\nhalf").ending(Transmission::Ending::Silence);
        addCases<Reply>({
            {"endless body", "GET", Fault::endless(), tooLong},
            {"endless header", "GET", rawReply(manyFields), tooLong},
            {"end without a length", "GET", unmeasured},
            {"end without a close_notify", "GET", unmeasured.ending(Transmission::Ending::Cut),
             lost},
            {"no content, and that compressed", "GET", bodiless},
            {"interim head alone", "GET", interim, lost},
            {"closed", "POST", Fault::close(), lost},
            {"reset", "GET", Fault::reset(), lost},
            {"length too great", "GET", Fault::wrongLength(5), lost},
            {"never answered", "GET", Fault::silence(), NSURLErrorTimedOut, {}, 1, soon},
            {"stops half-way", "GET", half, NSURLErrorTimedOut, {}, 1, soon},
            {"no HTTP", "GET", Fault::raw("hello\r\n\r\n"), bad},
        });
    }

    void brokenReplies() { checkReply(); }

    void redirects_data()
    {
        const int bad = NSURLErrorBadServerResponse;
        const int tooMany = NSURLErrorHTTPTooManyRedirects;
        const Fault moved = Fault::redirectToPath("/login.php");
        const Fault otherPort = Fault::redirect("https://localhost:444/user.php");
        const Fault sameElsewise =
            Fault::redirect("https://LOCALHOST:443/user.php?userEmail=secret#again");
        // Each head is short enough; all of them together are not.
        const Fault further =
            Fault::redirectFurther().withHeader("A", QByteArray(qsizetype{20} * 1024, 'b'));
        addCases<Reply>({
            {"redirect", "GET", moved, 0, {}, 2},
            {"redirect of a POST", "POST", moved, bad},
            {"redirect 307 of a POST", "POST", Fault::redirectToPath("/login.php", 307), bad},
            {"redirect to itself", "GET", Fault::redirectLoop(), tooMany},
            {"redirect to itself in other words", "GET", sameElsewise, tooMany},
            {"redirects without end", "GET", further, tooMany, {}, 21},
            {"redirect to http", "GET", Fault::redirectToHttp(), bad},
            {"redirect to another host", "GET", Fault::redirectToOtherHost(), bad},
            {"redirect to another port", "GET", otherPort, bad},
            {"redirect to a file", "GET", Fault::redirect("file:///etc/passwd"), bad},
        });
    }

    void redirects() { checkReply(); }

    /// Every truncation of a reply, with and without close_notify. One is undetectable: that of a
    /// body which only the proper end of its connection ends.
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
                const bool needsCloseNotify =
                    !fields.contains("Length") && !fields.contains("chunked");
                for (qsizetype length = 0; length <= reply.size(); ++length) {
                    const bool isWhole =
                        length == reply.size() || (endsWithClose && length >= head.size());
                    const bool isFine =
                        isWhole && (!needsCloseNotify || ending == Transmission::Ending::Close);
                    const QByteArray sent = reply.left(length);
                    // libcurl does not need the last line feed.
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
};

WZT_TEST(URLSessionTest)
#include "URLSessionTest.moc"
