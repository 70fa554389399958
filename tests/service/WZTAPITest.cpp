// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTAPI.h"
#include "platform/foundation/NSURLSession.h"
#include "sandbox/Sandbox.h"
#include "service/TavloCategoryExtension.h"

#include <QTest>

#include <algorithm>
#include <future>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;

namespace {

struct Outcome {
    NSUInteger code = 999;
    std::optional<WZTUser> user;
    int calls = 0;
};

/// The outcome of one call, and how often it was reported; to be read once the session is gone,
/// or waited for.
class Call {
public:
    [[nodiscard]] WZTAPI::UserCompletion completion()
    {
        return [this](NSUInteger code, const std::optional<WZTUser> &user) {
            m_outcome = {code, user, m_outcome.calls + 1};
            if (m_outcome.calls == 1)
                m_done.set_value(std::this_thread::get_id());
        };
    }
    /// Waits for the completion, which must run on a thread of its own.
    [[nodiscard]] const Outcome &wait()
    {
        auto done = m_done.get_future();
        if (done.wait_for(10s) == std::future_status::ready)
            m_ownThread = done.get() != std::this_thread::get_id();
        return m_outcome;
    }
    [[nodiscard]] bool ranOnOwnThread() const { return m_ownThread; }
    [[nodiscard]] const Outcome &outcome() const { return m_outcome; }

private:
    Outcome m_outcome;
    std::promise<std::thread::id> m_done;
    bool m_ownThread = false;
};

/// One operation and what its outcomes are reported as, written down a second time on purpose.
struct Operation {
    QByteArray path;
    std::function<void(WZTAPI::UserCompletion)> call;
    NSUInteger transportError;
    std::optional<NSUInteger> user;
    std::map<QByteArray, NSUInteger> results;
    NSUInteger anythingElse;
};

const QString email = u"jo@wzt.example"_s;
const QString digest = u"d1"_s;

const std::vector<Operation> operations = {
    {"/login.php",
     [](auto done) { WZTAPI::loginToAccount(email, digest, done); },
     3,
     1,
     {{"User Does Not Exist", 2}, {"Incorrect", 0}},
     3},
    {"/register.php",
     [](auto done) { WZTAPI::registerEmail(email, u"Jo"_s, digest, done); },
     4,
     2,
     {{"User Exists", 0}, {"Improper request", 1}},
     3},
    {"/passwordreset.php",
     [](auto done) {
         WZTAPI::resetAccountPassword(email, [done](NSUInteger code) { done(code, {}); });
     },
     2,
     {},
     {{"Message has been sent", 0}, {"Message could not be sent", 3}, {"User Not Found", 3}},
     2},
    {"/update.php",
     [](auto done) { WZTAPI::updateAccount(email, {}, digest, u"d2"_s, done); },
     3,
     1,
     {{"User Not Found", 2}, {"Incorrect", 0}},
     3},
    {"/user.php",
     [](auto done) { WZTAPI::userForAccount(email, done); },
     2,
     0,
     {{"No User", 1}, {"Invalid Request", 2}},
     2},
};

constexpr char userReply[] = R"({"userTavloID":7,"userEmail":"jo@wzt.example","userName":"Jo"%1})";

QByteArray userReplyWith(const char *more)
{
    return QByteArray(userReply).replace("%1", more);
}

} // namespace

class WZTAPITest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_session.reset(); }

    void requestsOnTheWire_data();
    void requestsOnTheWire();
    void repliesBecomeCodes_data();
    void repliesBecomeCodes();
    void transportErrorsBecomeCodes_data();
    void transportErrorsBecomeCodes();
    void aRequestThatChangesSomethingIsSentOnce_data();
    void aRequestThatChangesSomethingIsSentOnce();
    void theEndOfTheSessionEndsEveryCallOnce();
    void theRealEndpointsAgree();
    void passwordsBecomeDigests_data();
    void passwordsBecomeDigests();

private:
    void startSession(const QString &connectTo);

    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;
};

void WZTAPITest::init()
{
    QVERIFY2(m_service.isRunning(), qPrintable(m_service.errorString()));
    m_service.clear();
    startSession(u"127.0.0.1:%1"_s.arg(m_service.port()));
}

void WZTAPITest::startSession(const QString &connectTo)
{
    m_session.reset();
    NSURLSessionConfiguration configuration;
    configuration.certificateAuthorityFile = m_service.caFile();
    configuration.connectTo = connectTo;
    configuration.timeoutIntervalForRequest = 300ms;
    m_session = std::make_unique<NSURLSession>(configuration);
    NSURLSession::setSharedSession(m_session.get());
}

void WZTAPITest::requestsOnTheWire_data()
{
    using Start = std::function<void(WZTAPI::UserCompletion)>;
    QTest::addColumn<Start>("start");
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("target");
    const auto row = [](const char *name, const Start &start, const char *method,
                        const char *target) {
        QTest::newRow(name) << start << QByteArray(method) << QByteArray(target);
    };
    row(
        "login", [](auto done) { WZTAPI::loginToAccount(u"a+b c@ü.de"_s, u"d1"_s, done); }, "GET",
        "/login.php?userEmail=a%2Bb%20c%40%C3%BC.de&userPassword=d1");
    row(
        "login, nothing typed", [](auto done) { WZTAPI::loginToAccount(u""_s, u""_s, done); },
        "GET", "/login.php?userEmail=&userPassword=");
    row(
        "registration",
        [](auto done) { WZTAPI::registerEmail(u"e"_s, u"A&B=%41"_s, u"d1"_s, done); }, "GET",
        "/register.php?userEmail=e&userPassword=d1&userName=A%26B%3D%2541");
    row(
        "registration, absent and empty",
        [](auto done) { WZTAPI::registerEmail({}, u""_s, u"d1"_s, done); }, "GET",
        "/register.php?userEmail&userPassword=d1&userName=");
    row("reset", operations[2].call, "POST", "/passwordreset.php?userEmail=jo%40wzt.example");
    row(
        "update, both",
        [](auto done) { WZTAPI::updateAccount(u"e"_s, u"N"_s, u"d1"_s, u"d2"_s, done); }, "POST",
        "/update.php?userEmail=e&userOldPassword=d1&userName=N&userNewPassword=d2");
    row(
        "update, password alone",
        [](auto done) { WZTAPI::updateAccount(u"e"_s, {}, u"d1"_s, u"d2"_s, done); }, "POST",
        "/update.php?userEmail=e&userOldPassword=d1&userNewPassword=d2");
    row(
        "update, nothing new",
        [](auto done) { WZTAPI::updateAccount({}, u""_s, u""_s, u""_s, done); }, "POST",
        "/update.php?userEmail&userOldPassword=");
    row("fetch", operations[4].call, "GET", "/user.php?userEmail=jo%40wzt.example");
    row(
        "fetch, no e-mail", [](auto done) { WZTAPI::userForAccount({}, done); }, "GET",
        "/user.php?userEmail");
}

void WZTAPITest::requestsOnTheWire()
{
    QFETCH(const std::function<void(WZTAPI::UserCompletion)>, start);
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, target);
    m_service.stage("*", Fault::json("{}"));
    Call call;
    start(call.completion());
    QCOMPARE(call.wait().calls, 1);
    QVERIFY(call.ranOnOwnThread());

    const auto requests = m_service.requests();
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests[0].method, method);
    QCOMPARE(requests[0].target, target);
    QCOMPARE(requests[0].bodySize, 0);
    QByteArrayList names;
    for (const auto &[name, value] : requests[0].headers)
        names.append(name.toLower());
    std::sort(names.begin(), names.end());
    QByteArrayList expected{"accept", "accept-encoding", "host"};
    if (method == "POST")
        expected.insert(2, "content-length");
    QCOMPARE(names, expected);
    QCOMPARE(requests[0].header("Host"), QByteArray("localhost"));
}

void WZTAPITest::repliesBecomeCodes_data()
{
    QTest::addColumn<size_t>("index");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<NSUInteger>("code");
    QTest::addColumn<bool>("makesUser");

    std::set<QByteArray> texts{"incorrect", "Improper Request", "Incorrect ", "success", ""};
    for (const Operation &operation : operations) {
        for (const auto &[text, code] : operation.results)
            texts.insert(text);
    }
    const QByteArrayList noResults{
        "",
        "plain text",
        "null",
        "\"Incorrect\"",
        "{}",
        "[]",
        R"([{"result":"Incorrect"}])",
        R"({"result":null})",
        R"({"result":0})",
        R"({"result":["Incorrect"]})",
        R"({"result":"Incorrect")",
        R"({"result":"User Exists"} and more)",
        "{\"result\":\"\xff\"}",
        R"({"userTavloID":7,"userEmail":"jo@wzt.example"})",
        R"({"userTavloID":0,"userEmail":"jo@wzt.example","userName":"Jo"})",
        R"([{"userTavloID":7,"userEmail":"jo@wzt.example","userName":"Jo"}])"};

    for (size_t index = 0; index < operations.size(); ++index) {
        const Operation &operation = operations[index];
        const auto row = [&](const QByteArray &body, NSUInteger code, bool makesUser = false) {
            QTest::addRow("%s %s", operation.path.constData(), body.constData())
                << index << body << code << makesUser;
        };
        for (const QByteArray &text : texts) {
            const auto known = operation.results.find(text);
            row("{\"result\":\"" + text + "\"}",
                known == operation.results.end() ? operation.anythingElse : known->second);
        }
        for (const QByteArray &body : noResults)
            row(body, operation.anythingElse);
        row(userReplyWith(""), operation.user.value_or(operation.anythingElse),
            operation.user.has_value());
        if (operation.user)
            row(userReplyWith(R"(,"result":"Incorrect")"), *operation.user, true);
    }
}

void WZTAPITest::repliesBecomeCodes()
{
    QFETCH(const size_t, index);
    QFETCH(const QByteArray, body);
    QFETCH(const NSUInteger, code);
    QFETCH(const bool, makesUser);
    // The HTTP status says nothing: some of the replies come as failures.
    m_service.stage(operations[index].path, Fault::json(body, body.size() % 2 == 0 ? 200 : 500));
    Call call;
    operations[index].call(call.completion());
    const Outcome outcome = call.wait();
    QCOMPARE(outcome.code, code);
    QVERIFY(outcome.user == (makesUser ? std::optional(WZTUser(7, email, u"Jo"_s)) : std::nullopt));
}

void WZTAPITest::transportErrorsBecomeCodes_data()
{
    QTest::addColumn<size_t>("index");
    QTest::addColumn<std::function<void(WZTAPITest &)>>("stage");
    const std::pair<const char *, std::function<void(WZTAPITest &)>> faults[] = {
        {"closed", [](WZTAPITest &test) { test.m_service.stage("*", Fault::close()); }},
        {"never answered", [](WZTAPITest &test) { test.m_service.stage("*", Fault::silence()); }},
        {"cut short", [](WZTAPITest &test) { test.m_service.stage("*", Fault::reset()); }},
        {"untrusted",
         [](WZTAPITest &test) { test.m_service.receive(sandbox::Reception::Untrusted); }},
        {"not there", [](WZTAPITest &test) { test.startSession(u"127.0.0.1:1"_s); }},
        {"no session", [](WZTAPITest &test) { test.m_session.reset(); }},
    };
    for (size_t index = 0; index < operations.size(); ++index) {
        for (const auto &[name, stage] : faults)
            QTest::addRow("%s %s", operations[index].path.constData(), name) << index << stage;
    }
}

void WZTAPITest::transportErrorsBecomeCodes()
{
    QFETCH(const size_t, index);
    QFETCH(const std::function<void(WZTAPITest &)>, stage);
    stage(*this);
    Call call;
    operations[index].call(call.completion());
    QCOMPARE(call.wait().code, operations[index].transportError);
    QVERIFY(!call.outcome().user);
    QVERIFY(m_service.requests().size() <= 1);
}

void WZTAPITest::aRequestThatChangesSomethingIsSentOnce_data()
{
    QTest::addColumn<size_t>("index");
    for (size_t index = 0; index < operations.size(); ++index) {
        if (operations[index].path != "/user.php")
            QTest::addRow("%s", operations[index].path.constData()) << index;
    }
}

void WZTAPITest::aRequestThatChangesSomethingIsSentOnce()
{
    QFETCH(const size_t, index);
    // Leaves a connection open that a careless client would use, lose and make up for.
    Call warm;
    WZTAPI::userForAccount(email, warm.completion());
    QCOMPARE(warm.wait().code, 1);

    m_service.stage("*", Fault::close(), -1);
    Call call;
    operations[index].call(call.completion());
    QCOMPARE(call.wait().code, operations[index].transportError);
    m_session.reset();
    QCOMPARE(m_service.requests().size(), 2);
    QCOMPARE(call.outcome().calls, 1);
}

void WZTAPITest::theEndOfTheSessionEndsEveryCallOnce()
{
    m_service.stage("*", Fault::silence(), -1);
    std::vector<Call> calls(operations.size());
    for (size_t index = 0; index < operations.size(); ++index)
        operations[index].call(calls[index].completion());
    m_session.reset();
    for (size_t index = 0; index < operations.size(); ++index) {
        QCOMPARE(calls[index].outcome().calls, 1);
        QCOMPARE(calls[index].outcome().code, operations[index].transportError);
    }
}

void WZTAPITest::theRealEndpointsAgree()
{
    const QString old = SHA256(u"first"_s);
    const QString next = SHA256(u"second"_s);
    const auto outcomeOf = [](const auto &start) {
        Call call;
        start(call.completion());
        return Outcome(call.wait());
    };
    Outcome seen = outcomeOf([&](auto done) { WZTAPI::registerEmail(email, u"Jo"_s, old, done); });
    QCOMPARE(seen.code, 2);
    QVERIFY(seen.user && seen.user->joinDate);
    seen = outcomeOf([&](auto done) { WZTAPI::registerEmail(email, u"Jo"_s, old, done); });
    QCOMPARE(seen.code, 0);
    seen = outcomeOf([&](auto done) { WZTAPI::loginToAccount(email, next, done); });
    QCOMPARE(seen.code, 0);
    seen = outcomeOf([&](auto done) { WZTAPI::updateAccount(email, u"J+ö"_s, old, next, done); });
    QCOMPARE(seen.code, 1);
    seen = outcomeOf([&](auto done) { WZTAPI::loginToAccount(email, next, done); });
    QCOMPARE(seen.code, 1);
    seen = outcomeOf([&](auto done) { WZTAPI::userForAccount(email, done); });
    QCOMPARE(seen.code, 0);
    QCOMPARE(seen.user.value().userName, u"J+ö"_s);
    QCOMPARE(outcomeOf(operations[2].call).code, 0);
    QCOMPARE(m_service.messages().size(), 1);
}

void WZTAPITest::passwordsBecomeDigests_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << u""_s
                           << u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s;
    QTest::newRow("abc") << u"abc"_s
                         << u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s;
    QTest::newRow("not ASCII")
        << u"ü"_s << u"607474ca475a9724d7360aba71a56d5df77e61350e3f724cfa1f46e857e2d85f"_s;
    QTest::newRow("ends at a null character")
        << u"a\0b"_s << u"ca978112ca1bbdcafac231b39a23dc4da786eff8147c4e72b9807785afee48bb"_s;
}

void WZTAPITest::passwordsBecomeDigests()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(SHA256(text), expected);
}

QTEST_GUILESS_MAIN(WZTAPITest)
#include "WZTAPITest.moc"
