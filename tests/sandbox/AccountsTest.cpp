// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/TestRunner.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

const QString jo = u"Jo.Smith@wzt.example"_s;

// {right}, {wrong}, {new} and {empty} in a target stand for the digests of such passwords.
QByteArray filled(QByteArray target)
{
    for (const auto &[mark, password] :
         {std::pair("{right}", u"secret"_s), {"{wrong}", u"sesame"_s}, {"{new}", u"other"_s}}) {
        target.replace(mark, Sandbox::digestOf(password));
    }
    return target.replace("{empty}", Sandbox::digestOf(QString()));
}

QByteArray query(const char *path, const QByteArray &items)
{
    return filled(QByteArray("/") + path + ".php?" + items);
}

} // namespace

/// The five endpoints as a client sees them, and the accounts behind them.
class AccountsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_service.clear();
        m_service.removeAccount(jo);
        m_service.removeAccount(u"new@wzt.example"_s);
        QVERIFY(m_service.addAccount({.email = jo, .name = u"Jo"_s}, u"secret"_s));
    }

    void outcome_data();
    void outcome();
    void userReplyLeavesOutWhatIsAbsent();
    void registeredAccountIsKeptAsTyped();
    void updateChangesWhatIsGivenAlone_data();
    void updateChangesWhatIsGivenAlone();
    void requestsAreSeenAsSent();
    void unknownAddressTakesAsLongAsWrongPassword();
    void manyAtOnce();
    void accountsOutliveTheService();

private:
    Sandbox m_service{Sandbox::Options{.hashMemory = size_t{1} << 20, .hashPasses = 1}};
    Client m_client{m_service.port(), m_service.caFile()};
};

void AccountsTest::outcome_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<long>("status");
    QTest::addColumn<QString>("result");
    struct Row {
        const char *path;
        const char *items;
        long status;
        const char *result;
    };
    const std::string longName =
        "userEmail=new@wzt.example&userPassword={right}&userName=" + std::string(101, 'n');
    const std::string longValue = "userEmail=" + std::string(3000, 'x');
    const Row rows[] = {
        {"login", "userEmail=Jo.Smith@wzt.example&userPassword={right}", 200, ""},
        {"login", "userEmail=jo.SMITH%40WZT.example&userPassword={right}", 200, ""},
        {"login",
         "userEmail=a&userPassword={wrong}&userEmail=jo.smith@wzt.example&userPassword={right}",
         200, ""},
        {"login", "userEmail=jo.smith@wzt.example&userPassword={wrong}", 200, "Incorrect"},
        {"login", "userEmail=jo.smith@wzt.example&userPassword=secret", 200, "Incorrect"},
        {"login", "userEmail=jo.smith@wzt.example&userPassword=", 400, "Incorrect"},
        {"login", "userEmail=jo.smith@wzt.example", 400, "Incorrect"},
        {"login", "userEmail=nobody@wzt.example&userPassword={right}", 200, "User Does Not Exist"},
        {"login", "userEmail=jo.smith@wzt.example'--&userPassword={right}", 200,
         "User Does Not Exist"},
        {"login", "userEmail=jo.smith@wzt.example%00&userPassword={right}", 200,
         "User Does Not Exist"},
        {"login", "userEmail&userPassword={right}", 400, "User Does Not Exist"},
        {"login", "", 400, "User Does Not Exist"},
        {"login", "userEmail=%FF&userPassword={right}", 400, "Improper request"},
        {"login", longValue.c_str(), 400, "Improper request"},
        {"register", "userEmail=new@wzt.example&userPassword={right}&userName=New+One", 200, ""},
        {"register", "userEmail=JO.smith@WZT.example&userPassword={right}&userName=X", 200,
         "User Exists"},
        {"register", "userEmail=&userPassword={empty}&userName=", 400, "Improper request"},
        {"register", "userEmail=new@wzt.example&userPassword={right}", 400, "Improper request"},
        {"register", "userEmail=new@wzt.example&userPassword={right}&userName=+%20", 400,
         "Improper request"},
        {"register", "userEmail=new@wzt.example&userPassword={right}&userName=a%0D%0ABcc:b", 400,
         "Improper request"},
        {"register", longName.c_str(), 400, "Improper request"},
        {"register", "userEmail=new@wzt.example&userPassword={empty}&userName=N", 400,
         "Improper request"},
        {"register", "userEmail=new@wzt.example&userPassword=ABC&userName=N", 400,
         "Improper request"},
        {"register", "userEmail=new@wzt.example%0A&userPassword={right}&userName=N", 400,
         "Improper request"},
        {"register", "userEmail=+new@wzt.example&userPassword={right}&userName=N", 400,
         "Improper request"},
        {"register", "userEmail=new.@wzt.example&userPassword={right}&userName=N", 400,
         "Improper request"},
        {"register", "userEmail=new@wzt..example&userPassword={right}&userName=N", 400,
         "Improper request"},
        {"passwordreset", "userEmail=jo.smith@wzt.example", 200, "Message has been sent"},
        {"passwordreset", "userEmail=nobody@wzt.example", 200, "User Not Found"},
        {"passwordreset", "userEmail=", 400, "User Not Found"},
        {"update", "userEmail=jo.smith@wzt.example&userOldPassword={right}", 200, ""},
        {"update", "userEmail=jo.smith@wzt.example&userOldPassword={wrong}&userName=N", 200,
         "Incorrect"},
        {"update", "userEmail=jo.smith@wzt.example&userName=N", 400, "Incorrect"},
        {"update", "userEmail=nobody@wzt.example&userOldPassword={right}&userName=N", 200,
         "User Not Found"},
        {"update", "userEmail&userOldPassword={right}&userName=N", 400, "User Not Found"},
        {"update", "userEmail=jo.smith@wzt.example&userOldPassword={right}&userNewPassword=n", 400,
         "Improper request"},
        {"update", "userEmail=jo.smith@wzt.example&userOldPassword={right}&userName=%07", 400,
         "Improper request"},
        {"user", "userEmail=JO.SMITH@wzt.example", 200, ""},
        {"user", "userEmail=nobody@wzt.example", 200, "No User"},
        {"user", "userEmail", 400, "Invalid Request"},
        {"user", "userEmail=%C3%28", 400, "Invalid Request"},
    };
    for (const Row &row : rows) {
        const bool posts =
            QByteArrayView(row.path) == "passwordreset" || QByteArrayView(row.path) == "update";
        QTest::addRow("%s %.60s", row.path, row.items)
            << QByteArray(posts ? "POST" : "GET") << query(row.path, row.items) << row.status
            << QString::fromLatin1(row.result);
    }
    for (const auto &[method, path, status, result] :
         {std::tuple("POST", "/login.php", 405L, "Method Not Allowed"),
          {"GET", "/update.php", 405L, "Method Not Allowed"},
          {"GET", "/passwordreset.php", 405L, "Method Not Allowed"},
          {"PUT", "/user.php", 405L, "Method Not Allowed"},
          {"GET", "/LOGIN.php", 404L, "Not Found"},
          {"GET", "/", 404L, "Not Found"},
          {"BAD METHOD", "/user.php", 400L, "Bad Request"}}) {
        QTest::addRow("%s %s", method, path)
            << QByteArray(method) << QByteArray(path) << status << QString::fromLatin1(result);
    }
    QTest::addRow("long target") << QByteArray("GET")
                                 << QByteArray("/user.php?" + QByteArray(9000, 'x')) << 414L
                                 << u"URI Too Long"_s;
    QTest::addRow("long head") << QByteArray("GET")
                               << QByteArray("/user.php?" + QByteArray(20'000, 'x')) << 431L
                               << u"Request Header Fields Too Large"_s;
}

void AccountsTest::outcome()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, target);
    QFETCH(const long, status);
    QFETCH(const QString, result);
    const Answer answer = m_client.send({.method = method, .target = target});
    QCOMPARE(answer.error, 0);
    QCOMPARE(answer.status, status);
    QCOMPARE(answer.result(), result);
    QCOMPARE(answer.json().contains(u"userTavloID"_s), result.isEmpty());
    QVERIFY(answer.head.contains("Content-Type: application/json\r\n"));
    QVERIFY(answer.head.contains("Cache-Control: no-store\r\n"));
    QCOMPARE(answer.head.contains("Allow: "), status == 405);
    // Whatever was asked: nobody was added but by a registration, and the password is the same.
    const bool isNew = result.isEmpty() && target.startsWith("/register");
    QCOMPARE(m_service.accountCount(), isNew ? 2 : 1);
    QCOMPARE(m_client.get(query("login", "userEmail=Jo.Smith@wzt.example&userPassword={right}"))
                 .result(),
             QString());
}

void AccountsTest::userReplyLeavesOutWhatIsAbsent()
{
    sandbox::Account account = *m_service.account(jo);
    const QJsonObject bare{{u"userTavloID"_s, account.number},
                           {u"userEmail"_s, jo},
                           {u"userName"_s, u"Jo"_s},
                           {u"userEarlyAdopterStatus"_s, 0},
                           {u"userJoined"_s, account.joined}};
    QCOMPARE(m_client.get(query("user", "userEmail=jo.smith@wzt.example")).json(), bare);

    account = {.number = account.number,
               .email = jo,
               .name = u"Jö \"\\ 🙂"_s,
               .reddit = u"r"_s,
               .twitter = u""_s,
               .discord = u"d"_s,
               .cydia = u"c"_s,
               .earlyAdopter = true,
               .joined = u"2019-08-14 17:05:09"_s};
    QVERIFY(m_service.updateAccount(account));
    const QJsonObject full{{u"userTavloID"_s, account.number},
                           {u"userEmail"_s, jo},
                           {u"userName"_s, account.name},
                           {u"userReddit"_s, u"r"_s},
                           {u"userTwitter"_s, u""_s},
                           {u"userDiscord"_s, u"d"_s},
                           {u"userCydiaID"_s, u"c"_s},
                           {u"userEarlyAdopterStatus"_s, 1},
                           {u"userJoined"_s, u"2019-08-14 17:05:09"_s}};
    QCOMPARE(m_client.get(query("user", "userEmail=jo.smith@wzt.example")).json(), full);
    QCOMPARE(m_service.account(jo.toUpper()), account);
}

void AccountsTest::registeredAccountIsKeptAsTyped()
{
    const Answer made = m_client.get(
        query("register", "userEmail=New@wzt.example&userPassword={new}&userName=+J%C3%B6+%2B1"));
    QCOMPARE(made.json().value(u"userName"_s).toString(), u" Jö +1"_s);
    QCOMPARE(made.json().value(u"userEmail"_s).toString(), u"New@wzt.example"_s);
    const auto joined = QDateTime::fromString(made.json().value(u"userJoined"_s).toString(),
                                              u"yyyy-MM-dd HH:mm:ss"_s);
    QVERIFY(std::abs(joined.secsTo(QDateTime::currentDateTime())) < 60);
    QCOMPARE(m_client.get(query("login", "userEmail=new@wzt.example&userPassword={new}")).json(),
             made.json());
    QVERIFY(!m_service.addAccount({.email = u"NEW@wzt.example"_s, .name = u"X"_s}, u"x"_s));
}

void AccountsTest::updateChangesWhatIsGivenAlone_data()
{
    QTest::addColumn<QByteArray>("items");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("changesPassword");
    QTest::newRow("name") << QByteArray("&userName=Joanna") << u"Joanna"_s << false;
    QTest::newRow("password") << QByteArray("&userName=&userNewPassword={new}") << u"Jo"_s << true;
    QTest::newRow("both") << QByteArray("&userName=Joanna&userNewPassword={new}") << u"Joanna"_s
                          << true;
    QTest::newRow("neither") << QByteArray("&userName=&userNewPassword=") << u"Jo"_s << false;
}

void AccountsTest::updateChangesWhatIsGivenAlone()
{
    QFETCH(const QByteArray, items);
    QFETCH(const QString, name);
    QFETCH(const bool, changesPassword);
    const QByteArray start = "userEmail=jo.smith@wzt.example&userOldPassword={right}";
    const Answer updated = m_client.post(query("update", start + items));
    QCOMPARE(updated.json().value(u"userName"_s).toString(), name);
    QCOMPARE(m_client.get(query("login", "userEmail=jo.smith@wzt.example&userPassword={right}"))
                 .result(),
             changesPassword ? u"Incorrect"_s : QString());
    QCOMPARE(
        m_client.get(query("login", "userEmail=jo.smith@wzt.example&userPassword={new}")).result(),
        changesPassword ? QString() : u"Incorrect"_s);
}

void AccountsTest::requestsAreSeenAsSent()
{
    m_client.send({.method = "POST",
                   .target = "/update.php?b=%41+c&&a&b=%2b=&=%zz",
                   .headers = {"X-Test: one", "X-test: two"},
                   .body = "userEmail=not+looked+at"});
    m_client.get("/user.php");
    const QList<sandbox::Request> requests = m_service.requests();
    QCOMPARE(requests.size(), 2);
    const sandbox::Request &first = requests[0];
    QCOMPARE(first.method, "POST");
    QCOMPARE(first.path, "/update.php");
    QCOMPARE(first.target, "/update.php?b=%41+c&&a&b=%2b=&=%zz");
    const QList<sandbox::QueryItem> items{
        {u"b"_s, u"A c"_s}, {u"a"_s, std::nullopt}, {u"b"_s, u"+="_s}, {u""_s, u"%zz"_s}};
    QCOMPARE(first.items, items);
    QCOMPARE(first.parameter(u"b"), u"+="_s);
    QCOMPARE(first.parameter(u"a"), QString());
    QCOMPARE(first.parameter(u"c"), std::nullopt);
    QCOMPARE(first.header("x-TEST"), "one");
    QVERIFY(first.headers.contains({"X-test", "two"}));
    QCOMPARE(first.bodySize, 23);
    QCOMPARE(requests[1].target, "/user.php");
    const int connections = m_service.connectionCount();
    m_service.closeIdleConnections();
    m_client.get("/user.php");
    m_client.get("/user.php");
    QCOMPARE(m_service.connectionCount(), connections + 1);
    QCOMPARE(m_client.send({.method = "HEAD", .target = "/nothing"}).error, 0);
    QCOMPARE(m_client.get("/user.php").status, 400);
}

void AccountsTest::unknownAddressTakesAsLongAsWrongPassword()
{
    Sandbox service;
    Client client(service.port(), service.caFile());
    service.addAccount({.email = jo, .name = u"Jo"_s}, u"secret"_s);
    const auto fastest = [&client](const char *items) {
        qint64 least = 1'000'000;
        for (int i = 0; i < 5; ++i) {
            least = std::min(least, client.get(query("login", items)).milliseconds);
        }
        return least;
    };
    const qint64 wrong = fastest("userEmail=jo.smith@wzt.example&userPassword={wrong}");
    const qint64 unknown = fastest("userEmail=nobody@wzt.example&userPassword={wrong}");
    QVERIFY2(unknown > wrong / 3, qPrintable(u"%1 ms against %2"_s.arg(unknown).arg(wrong)));
}

void AccountsTest::manyAtOnce()
{
    std::atomic<int> registered{0};
    std::atomic<int> signedIn{0};
    std::vector<std::thread> threads;
    threads.reserve(16);
    for (int i = 0; i < 16; ++i) {
        threads.emplace_back([&] {
            Client client(m_service.port(), m_service.caFile());
            const Answer made = client.get(
                query("register", "userEmail=new@wzt.example&userPassword={new}&userName=N"));
            registered += made.result().isEmpty();
            signedIn +=
                client.get(query("login", "userEmail=jo.smith@wzt.example&userPassword={right}"))
                    .result()
                    .isEmpty();
        });
    }
    std::for_each(threads.begin(), threads.end(), [](std::thread &each) { each.join(); });
    QCOMPARE(registered, 1);
    QCOMPARE(signedIn, 16);
    QCOMPARE(m_service.requests().size(), 32);
}

void AccountsTest::accountsOutliveTheService()
{
    const QTemporaryDir folder;
    const Sandbox::Options options{.directory = folder.path() + u"/made/here"_s};
    {
        Sandbox service(options);
        QVERIFY2(service.isRunning(), qPrintable(service.errorString()));
        service.addAccount({.email = jo, .name = u"Jo"_s}, u"secret"_s);
        const Sandbox second(options);
        QVERIFY(second.errorString().contains("another service"_L1));
        const Sandbox third({.port = service.port()});
        QVERIFY(!third.isRunning());
        QVERIFY(!third.account(jo));
    }
    const Sandbox again(options);
    Client client(again.port(), again.caFile());
    QCOMPARE(
        client.get(query("login", "userEmail=jo.smith@wzt.example&userPassword={right}")).status,
        200);
    const QFileInfoList files = QDir(again.directory()).entryInfoList(QDir::Files | QDir::System);
    QVERIFY(files.size() >= 6);
    for (const QFileInfo &file : files) {
        QCOMPARE(
            file.permissions()
                & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
            QFile::Permissions());
    }
    QFile database(again.directory() + u"/service.sqlite-wal"_s);
    QVERIFY(database.open(QFile::ReadOnly));
    QVERIFY(!database.readAll().contains(Sandbox::digestOf(u"secret"_s)));
}

WZT_TEST(AccountsTest)

#include "AccountsTest.moc"
