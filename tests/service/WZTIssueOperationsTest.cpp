// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackage.h"
#include "model/WZTSession.h"
#include "platform/foundation/NSURLSession.h"
#include "sandbox/Sandbox.h"
#include "service/WZTAPI.h"
#include "tests/support/TestRunner.h"

#include <QTest>

#include <future>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Fault;
using Text = WZTAPI::Text;

namespace {

struct Outcome {
    NSUInteger code = 999;
    std::optional<QList<WZTPackageIssue>> issues;
};

/// What `start` reports; a second report ends the test program.
Outcome outcomeOf(const std::function<void(WZTAPI::IssuesCompletion)> &start)
{
    auto promise = std::make_shared<std::promise<Outcome>>();
    start([promise](NSUInteger code, const auto &issues) { promise->set_value({code, issues}); });
    auto outcome = promise->get_future();
    return outcome.wait_for(10s) == std::future_status::ready ? outcome.get() : Outcome();
}

Outcome listed(const Text &package)
{
    return outcomeOf([&](auto done) { WZTAPI::issuesForPackageIdentifier(package, done); });
}

NSUInteger submitted(const Text &package, const Text &title, const Text &description)
{
    return outcomeOf([&](auto done) {
               WZTAPI::submitIssueForPackage(package, title, description,
                                             [done](auto code) { done(code, {}); });
           })
        .code;
}

struct Session : WZTSession {
    Session() { install(this); }
    const std::optional<WZTUser> &currentUser() const override { return user; }
    void setCurrentUser(const WZTUser &) override { }
    void logout() override { }

    std::optional<WZTUser> user = WZTUser(42, u"jo@wzt.example"_s, u"Jo"_s);
};

QStringList logged;

void record(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logged.append(line);
}

} // namespace

class WZTIssueOperationsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_session.reset(); }

    void listRepliesBecomeCodes();
    void submissionRepliesBecomeCodes();
    void aSubmissionLogsOneLineFirst();
    void theRealEndpointsAgree();

private:
    sandbox::Sandbox m_service;
    std::unique_ptr<NSURLSession> m_session;
};

void WZTIssueOperationsTest::init()
{
    QVERIFY2(m_service.isRunning(), qPrintable(m_service.errorString()));
    m_service.clear();
    m_session = std::make_unique<NSURLSession>(NSURLSessionConfiguration{
        m_service.caFile(), u"127.0.0.1:%1"_s.arg(m_service.port()), 10s});
    NSURLSession::setSharedSession(m_session.get());
}

void WZTIssueOperationsTest::listRepliesBecomeCodes()
{
    struct Row {
        const char *body;
        NSUInteger code;
        /// Nil where no list is handed over.
        std::optional<QStringList> titles;
    };
    const Row rows[] = {
        {"[]", 0, {}},
        {R"([{"title":"b"},{"title":"a"},{"title":"b"}])", 1, {{u"b"_s, u"a"_s, u"b"_s}}},
        {"[{}]", 1, {{u"nil"_s}}},
        {R"([1,{"title":"a"},null,"b",[{"title":"c"}]])", 1, {{u"a"_s}}},
        {R"([1,null,"b",[]])", 1, QStringList()},
        {"{}", 2, {}},
        {R"({"result":"ok"})", 2, {}},
        {R"({"title":"a"})", 2, {}},
        {"", 2, {}},
        {"text", 2, {}},
        {"null", 2, {}},
        {R"([{"title":"a"})", 2, {}},
        {"[] and", 2, {}},
        {"[\"\xff\"]", 2, {}},
    };
    for (const auto &[body, code, titles] : rows) {
        // The HTTP status says nothing: some of the replies come as failures.
        m_service.stage("/issues.php", Fault::json(body, qstrlen(body) % 2 == 0 ? 200 : 500));
        const Outcome outcome = listed(u"p"_s);
        QVERIFY2(outcome.code == code, body);
        QVERIFY2(outcome.issues.has_value() == titles.has_value(), body);
        QStringList found;
        for (const WZTPackageIssue &issue : outcome.issues.value_or(QList<WZTPackageIssue>()))
            found.append(issue.title.value_or(u"nil"_s));
        QCOMPARE(found, titles.value_or(QStringList()));
    }
}

void WZTIssueOperationsTest::submissionRepliesBecomeCodes()
{
    const std::pair<const char *, NSUInteger> rows[] = {
        {"{}", 0},
        {R"({"issueId":3})", 0},
        {R"({"Result":"refused"})", 0},
        {R"({"issue":{"result":1}})", 0},
        {"", 0},
        {"text", 0},
        {"null", 0},
        {R"({"result":"refused")", 0},
        {R"({"result":"success"})", 1},
        {R"({"issueId":3,"result":null})", 1},
        {R"({"result":false})", 1},
        {"[]", 1},
        {R"([{"issueId":3}])", 1},
    };
    for (const auto &[body, code] : rows) {
        m_service.stage("/submitissue.php", Fault::json(body, qstrlen(body) % 2 == 0 ? 200 : 500));
        QVERIFY2(submitted(u"p"_s, u"t"_s, {}) == code, body);
    }
}

void WZTIssueOperationsTest::aSubmissionLogsOneLineFirst()
{
    m_service.stage("*", Fault::json("{}"), -1);
    Session session;
    session.user->tavloId = -7;
    logged.clear();
    const QtMessageHandler previous = qInstallMessageHandler(record);
    (void)listed(u"p"_s);
    const qsizetype byList = logged.size();
    (void)submitted(u"p"_s, u"a\r\nQuery Items: ()"_s, u"100% %1 ü\u2028"_s);
    // Without a session the call is over before it returns: the line must have been first.
    m_session.reset();
    session.user.reset();
    qsizetype before = 0;
    WZTAPI::submitIssueForPackage({}, u"t"_s, {}, [&](auto) { before = logged.size(); });
    qInstallMessageHandler(previous);

    QCOMPARE(byList, 0);
    QCOMPARE(before, 2);
    QCOMPARE(logged,
             (QStringList{u"Query Items: (packageId = p, title = a\\u000d\\u000aQuery Items: (),"
                          " reporterId = -7, description = 100% %1 ü\\u2028)"_s,
                          u"Query Items: (packageId = (null), title = t, reporterId = 0)"_s}));
}

void WZTIssueOperationsTest::theRealEndpointsAgree()
{
    const Session session;
    for (const auto &package : WZTPackage::allPackages()) {
        const QString &identifier = package->bundleIdentifier;
        QCOMPARE(listed(identifier).code, 0);
        const Text descriptions[] = {{}, u""_s, u"1 + 1 = 2 & 😀\n\n%41"_s};
        for (const Text &description : descriptions)
            QCOMPARE(submitted(identifier, package->name, description), 0);
        const auto issues = listed(identifier).issues.value();
        QCOMPARE(issues.size(), 3);
        for (qsizetype i = 0; i < 3; ++i) {
            const WZTPackageIssue &issue = issues[2 - i];
            QVERIFY(issue.issueId && issue.referenceId && issue.openDate);
            QVERIFY(issue
                    == WZTPackageIssue(issue.issueId, issue.referenceId, identifier, u"42"_s,
                                       package->name, descriptions[i], true, issue.openDate));
        }
    }
    QCOMPARE(submitted(WZTPackage::allPackages()[0]->bundleIdentifier, u""_s, {}), 1);
    QCOMPARE(submitted(u"x"_s, u"t"_s, {}), 1);
    QCOMPARE(listed(u"x"_s).code, 2);
}

WZT_TEST(WZTIssueOperationsTest)
#include "WZTIssueOperationsTest.moc"
