// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "sandbox/Sandbox.h"
#include "sandbox/endpoints/Packages.h"
#include "tests/sandbox/Client.h"

#include <QDateTime>
#include <QJsonArray>

#include <atomic>
#include <stdexcept>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

const QString jo = u"Jo.Smith@wzt.example"_s;
const QString package = sandbox::packages()[1];

/// Replaces abbreviations: {e} and {p} are userEmail and userPassword, {jo} is Jo's address in
/// other case, {new} for a registration, {right}, {wrong} and {empty} for the digests of such
/// passwords, {id} for a package.
QByteArray filled(QByteArray text)
{
    const std::pair<const char *, QByteArray> marks[] = {
        {"{e}", "userEmail"},
        {"{p}", "userPassword"},
        {"{jo}", "userEmail=jo.smith@wzt.example"},
        {"{new}", "/register.php?userEmail=n@wzt.example"},
        {"{right}", Sandbox::digestOf(u"secret"_s)},
        {"{wrong}", Sandbox::digestOf(u"sesame"_s)},
        {"{empty}", Sandbox::digestOf(u""_s)},
        {"{id}", "packageId=" + package.toLatin1()},
    };
    for (const auto &[mark, meaning] : marks) {
        text.replace(mark, meaning);
    }
    return text;
}

QDateTime moment(const QJsonValue &text)
{
    return QDateTime::fromString(text.toString(), u"yyyy-MM-dd HH:mm:ss"_s);
}

} // namespace

/// The endpoints over HTTPS, and the accounts and issues that they change.
class EndpointsTest : public QObject {
    Q_OBJECT

    Sandbox m_service{Sandbox::Options{.hashMemory = size_t{1} << 20, .hashPasses = 1}};
    Client m_client{m_service.port(), m_service.caFile()};

    [[nodiscard]] Answer get(const QByteArray &target) { return m_client.get(filled(target)); }
    [[nodiscard]] Answer post(const QByteArray &target) { return m_client.post(filled(target)); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_service.addAccount({.email = jo, .name = u"Jo"_s}, u"secret"_s));
    }

    void refusals()
    {
        const std::pair<const char *, QByteArrayList> rows[] = {
            {"200 Incorrect",
             {"GET /login.php?{jo}&{p}={wrong}", "GET /login.php?{jo}&{p}=secret",
              "POST /update.php?{jo}&userOldPassword={wrong}&userName=N"}},
            {"400 Incorrect", {"GET /login.php?{jo}&{p}=", "POST /update.php?{jo}&userName=N"}},
            {"200 User Does Not Exist",
             {"GET /login.php?{e}=nobody@wzt.example&{p}={right}",
              "GET /login.php?{jo}'--&{p}={right}", "GET /login.php?{jo}%00&{p}={right}"}},
            {"400 User Does Not Exist", {"GET /login.php"}},
            {"200 User Exists", {"GET /register.php?{jo}&{p}={right}&userName=X"}},
            {"400 Improper request",
             {"GET /login.php?{e}=%FF&{p}={right}", "GET /login.php?{e}=" + QByteArray(6000, 'x'),
              "GET {new}&{p}={right}", "GET {new}&{p}={right}&userName=+",
              "GET {new}&{p}={right}&userName=%0Ab", "GET {new}&{p}={empty}&userName=N",
              "GET {new}&{p}=ABC&userName=N", "GET {new}%0A&{p}={right}&userName=N",
              "GET {new}.&{p}={right}&userName=N",
              "POST /update.php?{jo}&userOldPassword={right}&userNewPassword=n",
              "POST /update.php?{jo}&userOldPassword={right}&userName=%07",
              "POST /submitissue.php?{id}&title=&reporterId=1",
              "POST /submitissue.php?{id}&title=t",
              "POST /submitissue.php?{id}&title=t&reporterId=-1"}},
            {"200 User Not Found",
             {"POST /passwordreset.php?{e}=nobody", "POST /update.php?{e}=n&userOldPassword=x"}},
            {"400 User Not Found", {"POST /passwordreset.php?{e}="}},
            {"200 No User", {"GET /user.php?{e}=nobody"}},
            {"400 Invalid Request", {"GET /user.php?{e}", "GET /user.php?{e}=%C3%28"}},
            {"200 Unknown Package",
             {"GET /issues.php?packageId=pintle",
              "POST /submitissue.php?{id}x&title=t&reporterId=1"}},
            {"400 Unknown Package", {"GET /issues.php"}},
            {"405 Method Not Allowed",
             {"POST /login.php", "GET /update.php",
              "GET /submitissue.php?{id}&title=t&reporterId=1"}},
            {"404 Not Found", {"GET /LOGIN.php"}},
            {"414 URI Too Long", {"GET /user.php?" + QByteArray(63'000, 'x')}},
            {"431 Request Header Fields Too Large", {"GET /" + QByteArray(100'000, 'x')}},
        };
        for (const auto &[outcome, requests] : rows) {
            for (const QByteArray &request : requests) {
                const QByteArrayList words = filled(request).split(' ');
                const Answer answer = m_client.send(words[0], words[1]);
                const QString seen = QString::number(answer.status) + u' ' + answer.result();
                QVERIFY2(seen == QLatin1StringView(outcome), request.left(80).constData());
                QCOMPARE(answer.head.contains("Allow: "), answer.status == 405);
            }
        }
        QCOMPARE(m_service.accountCount(), 1);
        QCOMPARE(m_service.issueCount(), 0);
        QVERIFY(get("/login.php?{e}=a&{p}={wrong}&{jo}&{p}={right}").isUser()); // the last counts
    }

    void answersAHeadThatIsTooLong()
    {
        for (const int length : {65'533, 65'536, 70'000, 250'000}) {
            const Answer answer =
                m_client.send("GET", "/user.php", 20'000, "X: " + QByteArray(length, 'x'));
            QCOMPARE(answer.error, 0);
            QCOMPARE(answer.status, 431);
            QVERIFY(answer.head.contains("Connection: close\r\n"));
        }
        QCOMPARE(m_client.send("GET", "/user.php", 20'000, "X: " + QByteArray(60'000, 'x')).status,
                 400);
    }

    void exceptionsFailOnlyTheirRequest()
    {
        std::atomic<int> exceptions = 0; // still to be thrown
        std::atomic<bool> isLogged = false;
        Sandbox service(Sandbox::Options{.log = [&](const QString &line) {
            if (exceptions-- > 0) {
                throw std::runtime_error("no room");
            }
            isLogged = line == u"GET /user.php: 500"_s;
        }});
        Client client(service.port(), service.caFile());
        exceptions = 1;
        QCOMPARE(client.get("/user.php").status, 500);
        QVERIFY(isLogged);
        service.stage("/user.php", sandbox::Fault::json("{}"), -1);
        exceptions = 9; // the client may ask again
        QVERIFY(client.get("/user.php").error != 0);
        service.clear();
        exceptions = 0;
        QCOMPARE(client.get("/user.php").status, 400);
    }

    void keepsTheLastThousandRequests()
    {
        Sandbox service;
        Client client(service.port(), service.caFile());
        service.stage("*", sandbox::Fault::json("{}"), -1);
        for (int i = 0; i < 1002; ++i) {
            (void)client.get('/' + QByteArray::number(i));
        }
        const auto requests = service.requests();
        QCOMPARE(requests.size(), 1000);
        QCOMPARE(requests.first().path, "/2");
        QCOMPARE(requests.last().path, "/1001");
    }

    void aRegistrationIsKeptAsTyped()
    {
        const QJsonObject made =
            get("/register.php?{e}=New@wzt.example&{p}={right}&userName=+J%C3%B6+%2B1").json();
        QJsonObject expected{{u"userTavloID"_s, 2},
                             {u"userEmail"_s, u"New@wzt.example"_s},
                             {u"userName"_s, u" Jö +1"_s},
                             {u"userEarlyAdopterStatus"_s, 0},
                             {u"userJoined"_s, made[u"userJoined"].toString()}};
        QCOMPARE(made, expected);
        QVERIFY(std::abs(moment(made[u"userJoined"]).secsTo(QDateTime::currentDateTime())) < 60);

        sandbox::Account account = *m_service.account(u"NEW@wzt.example"_s);
        account.twitter = u""_s;
        account.earlyAdopter = true;
        QVERIFY(m_service.updateAccount(account));
        expected[u"userTwitter"_s] = u""_s;
        expected[u"userEarlyAdopterStatus"_s] = 1;
        const Answer answer = get("/login.php?{e}=new@WZT.example&{p}={right}");
        QCOMPARE(answer.json(), expected);
        QVERIFY(answer.head.contains("Content-Type: application/json\r\n"));
        QVERIFY(answer.head.contains("Cache-Control: no-store\r\n"));
    }

    void submissionsAreListedNewestFirst()
    {
        const auto submit = [this](const QByteArray &items) -> QJsonValue {
            return post("/submitissue.php?{id}&reporterId=7&title=" + items).json()[u"issueId"];
        };
        (void)submit("+J%C3%B6+%2B1");
        m_service.advanceClock(std::chrono::hours(1));
        const QJsonValue second = submit("b&description=x%0Ay");
        (void)submit("c&description"); // within the same second
        QVERIFY(m_service.addIssue({.package = sandbox::packages()[2], .title = u"elsewhere"_s}));

        const QJsonArray list = get("/issues.php?{id}").list();
        QCOMPARE(list.size(), 3);
        QCOMPARE(list[0][u"title"], u"c"_s);
        QCOMPARE(list[0][u"description"], u""_s);
        QCOMPARE(list[1].toObject(),
                 (QJsonObject{{u"issueId"_s, second},
                              {u"referenceId"_s, list[1][u"referenceId"].toString()},
                              {u"packageId"_s, package},
                              {u"reporterId"_s, u"7"_s},
                              {u"title"_s, u"b"_s},
                              {u"description"_s, u"x\ny"_s},
                              {u"open"_s, 1},
                              {u"openDate"_s, list[1][u"openDate"].toString()}}));
        QCOMPARE(list[2][u"title"], u" Jö +1"_s);
        QVERIFY(list[2][u"description"].isNull());
        QVERIFY(list[1][u"referenceId"] != list[2][u"referenceId"]);
        QVERIFY(moment(list[2][u"openDate"]).secsTo(moment(list[1][u"openDate"])) >= 3600);
    }
};

WZT_TEST(EndpointsTest)
#include "EndpointsTest.moc"
