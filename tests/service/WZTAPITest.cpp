// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTAPI.h"
#include "platform/foundation/NSURLSession.h"
#include "sandbox/Sandbox.h"
#include "service/TavloCategoryExtension.h"
#include "tests/support/TestRunner.h"

#include <QTest>

#include <algorithm>
#include <future>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;

namespace {

using Start = std::function<void(WZTAPI::UserCompletion)>;

struct Outcome {
    NSUInteger code = 999;
    std::optional<WZTUser> user;
    std::thread::id thread;
};

/// What `start` reports; a second report ends the test program.
Outcome outcomeOf(const Start &start)
{
    auto promise = std::make_shared<std::promise<Outcome>>();
    start([promise](NSUInteger code, const std::optional<WZTUser> &user) {
        promise->set_value({code, user, std::this_thread::get_id()});
    });
    auto outcome = promise->get_future();
    return outcome.wait_for(10s) == std::future_status::ready ? outcome.get() : Outcome();
}

const QString email = u"jo@wzt.example"_s;
const QString first = SHA256(u"first"_s);
const QString second = SHA256(u"second"_s);

void login(const WZTAPI::UserCompletion &done)
{
    WZTAPI::loginToAccount(email, first, done);
}
void registration(const WZTAPI::UserCompletion &done)
{
    WZTAPI::registerEmail(email, u"Jo"_s, first, done);
}
void reset(const WZTAPI::UserCompletion &done)
{
    WZTAPI::resetAccountPassword(email, [done](NSUInteger code) { done(code, {}); });
}
void update(const WZTAPI::UserCompletion &done)
{
    WZTAPI::updateAccount(email, {}, first, second, done);
}
void fetch(const WZTAPI::UserCompletion &done)
{
    WZTAPI::userForAccount(email, done);
}
void issues(const WZTAPI::UserCompletion &done)
{
    WZTAPI::issuesForPackageIdentifier(u"p"_s, [done](auto code, auto &) { done(code, {}); });
}
void submission(const WZTAPI::UserCompletion &done)
{
    WZTAPI::submitIssueForPackage(u"p"_s, u"t"_s, {}, [done](auto code) { done(code, {}); });
}

/// An operation and what its outcomes are reported as, written down a second time on purpose.
struct Operation {
    Start start;
    NSUInteger transportError;
    std::optional<NSUInteger> user;
    NSUInteger anythingElse;
    /// None where an operation does not read what the result says.
    std::map<QByteArray, NSUInteger> results;
};
const std::map<QByteArray, Operation> operations = {
    {"/login.php", {login, 3, 1, 3, {{"User Does Not Exist", 2}, {"Incorrect", 0}}}},
    {"/register.php", {registration, 4, 2, 3, {{"User Exists", 0}, {"Improper request", 1}}}},
    {"/passwordreset.php",
     {reset,
      2,
      {},
      2,
      {{"Message has been sent", 0}, {"Message could not be sent", 3}, {"User Not Found", 3}}}},
    {"/update.php", {update, 3, 1, 3, {{"User Not Found", 2}, {"Incorrect", 0}}}},
    {"/user.php", {fetch, 2, 0, 2, {{"No User", 1}, {"Invalid Request", 2}}}},
    {"/issues.php", {issues, 2, {}, 2, {}}},
    {"/submitissue.php", {submission, 1, {}, 0, {}}},
};

} // namespace

class WZTAPITest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_session.reset(); }

    void requestsOnTheWire_data();
    void requestsOnTheWire();
    void repliesBecomeCodes_data()
    {
        addOperations([](const Operation &each) { return !each.results.empty(); });
    }
    void repliesBecomeCodes();
    void transportErrorsBecomeCodes_data() { addOperations(); }
    void transportErrorsBecomeCodes();
    void aRequestThatChangesSomethingIsSentOnce_data() { addOperations(); }
    void aRequestThatChangesSomethingIsSentOnce();
    void theRealEndpointsAgree();
    void passwordsBecomeDigests();

private:
    static void addOperations(bool (*isMeant)(const Operation &) = [](auto &) { return true; });
    void startSession(const QString &connectTo);

    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;
};

void WZTAPITest::init()
{
    QVERIFY2(m_service.isRunning(), qPrintable(m_service.errorString()));
    m_service.clear();
    (void)m_service.removeAccount(email);
    startSession(u"127.0.0.1:%1"_s.arg(m_service.port()));
}

void WZTAPITest::startSession(const QString &connectTo)
{
    m_session.reset();
    m_session = std::make_unique<NSURLSession>(
        NSURLSessionConfiguration{m_service.caFile(), connectTo, 300ms});
    NSURLSession::setSharedSession(m_session.get());
}

void WZTAPITest::addOperations(bool (*isMeant)(const Operation &))
{
    QTest::addColumn<QByteArray>("path");
    for (const auto &[path, operation] : operations) {
        if (isMeant(operation))
            QTest::newRow(path.constData()) << path;
    }
}

void WZTAPITest::requestsOnTheWire_data()
{
    QTest::addColumn<Start>("start");
    QTest::addColumn<QByteArray>("method");
    const std::tuple<const char *, const char *, Start> rows[] = {
        {"GET", "/login.php?userEmail=a%2Bb%20c%40%C3%BC.de&userPassword=d1",
         [](auto done) { WZTAPI::loginToAccount(u"a+b c@ü.de"_s, u"d1"_s, done); }},
        {"GET", "/login.php?userEmail=&userPassword=",
         [](auto done) { WZTAPI::loginToAccount(u""_s, u""_s, done); }},
        {"GET", "/register.php?userEmail=e&userPassword=d1&userName=A%26B%3D%2541",
         [](auto done) { WZTAPI::registerEmail(u"e"_s, u"A&B=%41"_s, u"d1"_s, done); }},
        {"GET", "/register.php?userEmail&userPassword=d1&userName=",
         [](auto done) { WZTAPI::registerEmail({}, u""_s, u"d1"_s, done); }},
        {"POST", "/passwordreset.php?userEmail=jo%40wzt.example", reset},
        {"POST", "/update.php?userEmail=e&userOldPassword=d1&userName=N&userNewPassword=d2",
         [](auto done) { WZTAPI::updateAccount(u"e"_s, u"N"_s, u"d1"_s, u"d2"_s, done); }},
        {"POST", "/update.php?userEmail=e&userOldPassword=d1&userNewPassword=d2",
         [](auto done) { WZTAPI::updateAccount(u"e"_s, {}, u"d1"_s, u"d2"_s, done); }},
        {"POST", "/update.php?userEmail&userOldPassword=",
         [](auto done) { WZTAPI::updateAccount({}, u""_s, u""_s, u""_s, done); }},
        {"GET", "/user.php?userEmail=jo%40wzt.example", fetch},
        {"GET", "/user.php?userEmail", [](auto done) { WZTAPI::userForAccount({}, done); }},
        {"GET", "/issues.php?packageId=p", issues},
        {"POST", "/submitissue.php?packageId=p&title=t&reporterId=0", submission},
        {"POST", "/submitissue.php?packageId=&title=a%0Ab%26&reporterId=0&description=",
         [](auto done) {
             WZTAPI::submitIssueForPackage(u""_s, u"a\nb&"_s, u""_s,
                                           [done](auto code) { done(code, {}); });
         }},
        {"POST", "/submitissue.php?packageId&title&reporterId=0&description=%F0%9F%98%80",
         [](auto done) {
             WZTAPI::submitIssueForPackage({}, {}, u"😀"_s, [done](auto code) { done(code, {}); });
         }},
    };
    for (const auto &[method, target, start] : rows)
        QTest::newRow(target) << start << QByteArray(method);
}

void WZTAPITest::requestsOnTheWire()
{
    QFETCH(const Start, start);
    QFETCH(const QByteArray, method);
    const Outcome outcome = outcomeOf(start);
    QVERIFY(outcome.code != 999 && outcome.thread != std::this_thread::get_id());

    const auto requests = m_service.requests();
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests[0].method, method);
    QCOMPARE(requests[0].target, QByteArray(QTest::currentDataTag()));
    QCOMPARE(requests[0].bodySize, 0);
    std::set<QByteArray> names;
    for (const auto &[name, value] : requests[0].headers)
        names.insert(name.toLower());
    std::set<QByteArray> expected{"accept", "accept-encoding", "host"};
    if (method == "POST")
        expected.insert("content-length");
    QVERIFY(names == expected);
    QCOMPARE(requests[0].header("Host"), QByteArray("localhost"));
}

void WZTAPITest::repliesBecomeCodes()
{
    QFETCH(const QByteArray, path);
    const Operation &operation = operations.at(path);
    const QByteArray user = R"({"userTavloID":7,"userEmail":"jo@wzt.example","userName":"Jo")";

    std::map<QByteArray, NSUInteger> codes; // by body
    for (const auto &[anyPath, any] : operations) {
        for (const auto &[text, code] : any.results)
            codes["{\"result\":\"" + text + "\"}"] = operation.anythingElse;
    }
    for (const char *body :
         {"", "text", "null", "\"Incorrect\"", "{}", "[]", R"([{"result":"Incorrect"}])",
          R"({"result":"incorrect"})", R"({"result":"Improper Request"})",
          R"({"result":" No User"})", R"({"result":""})", R"({"result":null})", R"({"result":0})",
          R"({"result":["Incorrect"]})", R"({"result":"Incorrect")",
          R"({"result":"User Exists"} and)", "{\"result\":\"\xff\"}",
          R"({"userTavloID":7,"userEmail":"jo@wzt.example"})",
          R"({"userTavloID":0,"userEmail":"jo@wzt.example","userName":"Jo"})"})
        codes[body] = operation.anythingElse;
    for (const auto &[text, code] : operation.results)
        codes["{\"result\":\"" + text + "\"}"] = code;
    codes["[" + user + "}]"] = operation.anythingElse;
    codes[user + "}"] = operation.user.value_or(operation.anythingElse);
    codes[user + R"(,"result":"none"})"] = codes[user + "}"];
    // The record wins over a result that has a code of its own.
    if (operation.user)
        codes[user + R"(,"result":"Incorrect"})"] = *operation.user;

    for (const auto &[body, code] : codes) {
        // The HTTP status says nothing: some of the replies come as failures.
        m_service.stage(path, Fault::json(body, body.size() % 2 == 0 ? 200 : 500));
        const Outcome outcome = outcomeOf(operation.start);
        QVERIFY2(outcome.code == code, body.constData());
        const bool makesUser = operation.user && body.startsWith(user);
        QVERIFY2(outcome.user.has_value() == makesUser, body.constData());
        QVERIFY(!makesUser || *outcome.user == WZTUser(7, email, u"Jo"_s));
    }
}

void WZTAPITest::transportErrorsBecomeCodes()
{
    QFETCH(const QByteArray, path);
    const Operation &operation = operations.at(path);
    const std::pair<const char *, std::function<void()>> faults[] = {
        {"never answered", [&] { m_service.stage(path, Fault::silence()); }},
        {"cut short", [&] { m_service.stage(path, Fault::reset()); }},
        {"untrusted", [&] { m_service.receive(sandbox::Reception::Untrusted); }},
        {"not there", [&] { startSession(u"127.0.0.1:1"_s); }},
        {"no session", [&] { m_session.reset(); }},
    };
    for (const auto &[name, stage] : faults) {
        init();
        stage();
        const Outcome outcome = outcomeOf(operation.start);
        QVERIFY2(outcome.code == operation.transportError && !outcome.user, name);
    }
    QCOMPARE(outcomeOf([](auto done) { WZTAPI::loginToAccount(QChar(0xd800), {}, done); }).code, 3);
}

void WZTAPITest::aRequestThatChangesSomethingIsSentOnce()
{
    QFETCH(const QByteArray, path);
    // Leaves a connection open that a careless client would use, lose and make up for.
    QCOMPARE(outcomeOf(fetch).code, 1);
    m_service.stage("*", Fault::close(), -1);
    QCOMPARE(outcomeOf(operations.at(path).start).code, operations.at(path).transportError);
    m_session.reset();
    if (path != "/user.php" && path != "/issues.php")
        QCOMPARE(m_service.requests().size(), 2);
}

void WZTAPITest::theRealEndpointsAgree()
{
    const std::pair<Start, NSUInteger> steps[] = {
        {registration, 2}, {registration, 0}, {login, 1}, {update, 1},
        {login, 0},        {update, 0},       {reset, 0}, {fetch, 0},
    };
    for (const auto &[start, code] : steps)
        QCOMPARE(outcomeOf(start).code, code);
    const Outcome last = outcomeOf(fetch);
    QCOMPARE(last.user.value().userName, u"Jo"_s);
    QVERIFY(last.user->joinDate);
}

void WZTAPITest::passwordsBecomeDigests()
{
    const std::pair<QString, QByteArray> rows[] = {
        {u""_s, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {u"abc"_s, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {u"ü"_s, "607474ca475a9724d7360aba71a56d5df77e61350e3f724cfa1f46e857e2d85f"},
        {u"a\0b"_s, "ca978112ca1bbdcafac231b39a23dc4da786eff8147c4e72b9807785afee48bb"},
    };
    for (const auto &[text, digest] : rows)
        QCOMPARE(SHA256(text).toLatin1(), digest);
}

WZT_TEST(WZTAPITest)
#include "WZTAPITest.moc"
