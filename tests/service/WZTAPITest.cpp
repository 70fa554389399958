// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTAPI.h"
#include "harness/TestRunner.h"
#include "model/WZTSession.h"
#include "platform/foundation/url/NSURLSession.h"
#include "sandbox/Sandbox.h"
#include "service/TavloCategoryExtension.h"

#include <future>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using sandbox::Fault;

namespace {

struct Outcome {
    NSUInteger code = 999;
    std::optional<WZTUser> user = {};
    std::optional<QList<WZTPackageIssue>> issues = {};
};

/// One object for the completions of all operations; a second report ends the test program.
struct Report {
    std::shared_ptr<std::promise<Outcome>> promise = std::make_shared<std::promise<Outcome>>();

    void operator()(NSUInteger code) const { promise->set_value({code}); }
    void operator()(NSUInteger code, const std::optional<WZTUser> &user) const
    {
        promise->set_value({code, user});
    }
    void operator()(NSUInteger code, const std::optional<QList<WZTPackageIssue>> &issues) const
    {
        promise->set_value({code, {}, issues});
    }
};

using Start = void (*)(const Report &);

Outcome outcomeOf(Start start)
{
    const Report report;
    start(report);
    return report.promise->get_future().get();
}

struct Operation {
    QByteArray request; // as it is sent
    Start start;
};
const std::map<QByteArray, Operation> operations = {
    {"/login.php",
     {"GET /login.php?userEmail=a%2Bb%20c%40%C3%BC.de&userPassword=d1",
      [](auto &report) { WZTAPI::loginToAccount(u"a+b c@ü.de"_s, u"d1"_s, report); }}},
    {"/register.php",
     {"GET /register.php?userEmail&userPassword=d1&userName=A%26B%3D%2541",
      [](auto &report) { WZTAPI::registerEmail({}, u"A&B=%41"_s, u"d1"_s, report); }}},
    {"/passwordreset.php",
     {"POST /passwordreset.php?userEmail=e",
      [](auto &report) { WZTAPI::resetAccountPassword(u"e"_s, report); }}},
    {"/update.php",
     {"POST /update.php?userEmail&userOldPassword=&userNewPassword=d2",
      [](auto &report) { WZTAPI::updateAccount({}, u""_s, u""_s, u"d2"_s, report); }}},
    {"/user.php",
     {"GET /user.php?userEmail=e", [](auto &report) { WZTAPI::userForAccount(u"e"_s, report); }}},
    {"/issues.php",
     {"GET /issues.php?packageId=p",
      [](auto &report) { WZTAPI::issuesForPackageIdentifier(u"p"_s, report); }}},
    {"/submitissue.php",
     {"POST /submitissue.php?packageId=p&title&reporterId=0&description=%F0%9F%98%80%0A",
      [](auto &report) { WZTAPI::submitIssueForPackage(u"p"_s, {}, u"😀\n"_s, report); }}},
};

/// The codes of an operation.
struct Codes {
    NSUInteger transportError;
    std::optional<NSUInteger> user;
    NSUInteger anythingElse;
    std::map<QByteArray, NSUInteger> results; // none where it does not read the result
};
const std::map<QByteArray, Codes> allCodes = {
    {"/login.php", {3, 1, 3, {{"User Does Not Exist", 2}, {"Incorrect", 0}}}},
    {"/register.php", {4, 2, 3, {{"User Exists", 0}, {"Improper request", 1}}}},
    {"/passwordreset.php",
     {2,
      {},
      2,
      {{"Message has been sent", 0}, {"Message could not be sent", 3}, {"User Not Found", 3}}}},
    {"/update.php", {3, 1, 3, {{"User Not Found", 2}, {"Incorrect", 0}}}},
    {"/user.php", {2, 0, 2, {{"No User", 1}, {"Invalid Request", 2}}}},
    {"/issues.php", {2, {}, 2, {}}},
    {"/submitissue.php", {1, {}, 0, {}}},
};

/// Somebody is signed in while it lives.
struct Session : WZTSession {
    Session() { install(this); }
    const std::optional<WZTUser> &currentUser() const override { return user; }
    void setCurrentUser(const WZTUser &) override {}
    void logout() override {}

    std::optional<WZTUser> user = WZTUser(-7, u"jo@wzt.example"_s, u"Jo"_s);
};

QStringList logged;

void record(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logged.append(line);
}

} // namespace

class WZTAPITest : public QObject {
    Q_OBJECT

    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;

    /// The HTTP status says nothing: some of the replies come as failures.
    Outcome outcomeOfReply(const QByteArray &path, const QByteArray &body)
    {
        m_service.stage(path, Fault::json(body, body.size() % 2 == 0 ? 200 : 500));
        return outcomeOf(operations.at(path).start);
    }

private Q_SLOTS:
    void init()
    {
        m_service.clear();
        m_session = std::make_unique<NSURLSession>(
            NSURLSessionConfiguration{m_service.caFile(), u"127.0.0.1:%1"_s.arg(m_service.port()),
                                      std::chrono::milliseconds(TestRunner::patience)});
        NSURLSession::setSharedSession(m_session.get());
    }
    void cleanup() { m_session.reset(); }

    void passwordsBecomeDigests()
    {
        const std::pair<QString, QByteArray> rows[] = {
            {u""_s, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
            {u"ü"_s, "607474ca475a9724d7360aba71a56d5df77e61350e3f724cfa1f46e857e2d85f"},
            {u"a\0b"_s, "ca978112ca1bbdcafac231b39a23dc4da786eff8147c4e72b9807785afee48bb"},
        };
        for (const auto &[text, digest] : rows) {
            QCOMPARE(SHA256(text).toLatin1(), digest);
        }
    }

    void requestsOnTheWire()
    {
        for (const auto &[path, operation] : operations) {
            m_service.clear();
            QVERIFY(outcomeOf(operation.start).code != 999);
            const auto requests = m_service.requests();
            QCOMPARE(requests.size(), 1);
            QCOMPARE(requests[0].method + ' ' + requests[0].target, operation.request);
            QCOMPARE(requests[0].bodySize, 0);
            std::set<QByteArray> names;
            for (const auto &[name, value] : requests[0].headers) {
                names.insert(name.toLower());
            }
            std::set<QByteArray> expected{"accept", "accept-encoding", "host"};
            if (requests[0].method == "POST") {
                expected.insert("content-length");
            }
            QVERIFY(names == expected);
            QCOMPARE(requests[0].header("Host"), QByteArray("localhost"));
        }
    }

    void repliesBecomeCodes_data()
    {
        QTest::addColumn<QByteArray>("path");
        for (const auto &[path, codes] : allCodes) {
            if (!codes.results.empty()) {
                QTest::newRow(path.constData()) << path;
            }
        }
    }

    void repliesBecomeCodes()
    {
        QFETCH(const QByteArray, path);
        const auto &[transportError, userCode, otherCode, results] = allCodes.at(path);
        const auto resultOf = [](const QByteArray &text) -> QByteArray {
            return "{\"result\":\"" + text + "\"}";
        };
        const QByteArray user = R"({"userTavloID":7,"userEmail":"jo@wzt.example","userName":"Jo")";

        std::map<QByteArray, NSUInteger> codes; // by body
        for (const auto &[anyPath, any] : allCodes) {
            for (const auto &[text, code] : any.results) {
                codes[resultOf(text)] = otherCode;
            }
        }
        for (const QByteArray &body : QByteArrayList{
                 "", "text", "null", "\"Incorrect\"", "{}", "[]", R"([{"result":"Incorrect"}])",
                 resultOf("incorrect"), resultOf("Improper Request"), resultOf(" No User"),
                 resultOf("\xff"), R"({"result":null})", R"({"result":["Incorrect"]})",
                 R"({"result":"Incorrect")", R"({"result":"User Exists"} and)", '[' + user + "}]",
                 R"({"userTavloID":0,"userEmail":"jo@wzt.example","userName":"Jo"})"}) {
            codes[body] = otherCode;
        }
        for (const auto &[text, code] : results) {
            codes[resultOf(text)] = code;
        }
        codes[user + "}"] = userCode.value_or(otherCode);
        // The record wins over a result that has a code of its own.
        if (userCode) {
            codes[user + R"(,"result":"Incorrect"})"] = *userCode;
        }

        for (const auto &[body, code] : codes) {
            const Outcome outcome = outcomeOfReply(path, body);
            QVERIFY2(outcome.code == code, body.constData());
            const bool makesUser = userCode && body.startsWith(user);
            QVERIFY2(outcome.user.has_value() == makesUser, body.constData());
            QVERIFY(!makesUser || *outcome.user == WZTUser(7, u"jo@wzt.example"_s, u"Jo"_s));
        }
    }

    void onlyAResultOrAListRefusesASubmission()
    {
        for (const char *body :
             {"{}", R"({"issueId":3})", R"({"Result":"refused"})", R"({"issue":{"result":1}})", "",
              "text", R"({"result":"refused")"}) {
            QVERIFY2(outcomeOfReply("/submitissue.php", body).code == 0, body);
        }
        for (const char *body : {R"({"result":"success"})", R"({"issueId":3,"result":null})",
                                 R"({"result":false})", "[]", R"([{"issueId":3}])"}) {
            QVERIFY2(outcomeOfReply("/submitissue.php", body).code == 1, body);
        }
    }

    void aLostRequestIsReportedAndNotSentAgain()
    {
        for (const auto &[path, operation] : operations) {
            init();
            // Leaves a connection open that a careless client would use, lose and make up for.
            QCOMPARE(outcomeOf(operations.at("/user.php").start).code, 1);
            m_service.stage("*", Fault::close());
            m_service.stage("*", Fault::raw("HTTP/1.1 200 OK\r\n"));
            m_service.stage("*", Fault::redirectLoop(), -1);
            const NSUInteger code = allCodes.at(path).transportError;
            for (int i = 0; i < 3; ++i) {
                QCOMPARE(outcomeOf(operation.start).code, code);
            }
            m_session.reset();
            QCOMPARE(outcomeOf(operation.start).code, code);
            QCOMPARE(m_service.requests().size(), 4);
        }
    }

    void aSubmissionLogsOneLineFirst()
    {
        Session session;
        logged.clear();
        const QtMessageHandler previous = qInstallMessageHandler(record);
        for (const auto &[path, operation] : operations) {
            (void)outcomeOf(operation.start);
        }
        // Without a session the call is over before it returns: the line must have been first.
        m_session.reset();
        session.user.reset();
        qsizetype before = 0;
        WZTAPI::submitIssueForPackage({}, u"100% %1\r\nforged\0\x1b[31m\u0085\u2028"_s, {},
                                      [&](auto) { before = logged.size(); });
        qInstallMessageHandler(previous);

        QCOMPARE(before, 2);
        QCOMPARE(logged,
                 (QStringList{u"Query Items: (packageId = p, title = (null), reporterId = -7,"
                              " description = 😀\\u000a)"_s,
                              u"Query Items: (packageId = (null), title = 100% %1\\u000d\\u000a"
                              "forged\\u0000\\u001b[31m\\u0085\\u2028, reporterId = 0)"_s}));
    }
};

WZT_TEST(WZTAPITest)
#include "WZTAPITest.moc"
