// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/Cases.h"
#include "tests/support/TestRunner.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using sandbox::Sandbox;

namespace {

const QString jo = u"Jo.Smith@wzt.example"_s;

/// Items of a query; {e} and {p} stand for the names userEmail and userPassword, {jo} for Jo's
/// address in other letters, {right}, {wrong}, {new} and {empty} for the digests of such passwords.
QByteArray query(const QByteArray &path, const QByteArray &items)
{
    QByteArray target = '/' + path + ".php?" + items;
    for (const auto &[mark, text] : {std::pair("{e}", "userEmail"),
                                     {"{p}", "userPassword"},
                                     {"{jo}", "userEmail=jo.smith@wzt.example"}})
        target.replace(mark, text);
    for (const auto &[mark, password] : {std::pair("{right}", u"secret"_s),
                                         {"{wrong}", u"sesame"_s},
                                         {"{new}", u"other"_s},
                                         {"{empty}", u""_s}})
        target.replace(mark, Sandbox::digestOf(password));
    return target;
}

using Outcome = std::tuple<QByteArray, QByteArray, long, QString>; // method, target, status, result
using Update = std::tuple<const char *, QByteArray, QString, bool>;

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

    void outcome_data()
    {
        struct Row {
            const char *path;
            QByteArray items;
            long status;
            const char *result;
        };
        const Row rows[] = {
            {"login", "{e}=Jo.Smith@wzt.example&{p}={right}", 200, ""},
            {"login", "{e}=jo.SMITH%40WZT.example&{p}={right}", 200, ""},
            {"login", "{e}=a&{p}={wrong}&{jo}&{p}={right}", 200, ""},
            {"login", "{jo}&{p}={wrong}", 200, "Incorrect"},
            {"login", "{jo}&{p}=secret", 200, "Incorrect"},
            {"login", "{jo}&{p}=", 400, "Incorrect"},
            {"login", "{jo}", 400, "Incorrect"},
            {"login", "{e}=nobody@wzt.example&{p}={right}", 200, "User Does Not Exist"},
            {"login", "{jo}'--&{p}={right}", 200, "User Does Not Exist"},
            {"login", "{jo}%00&{p}={right}", 200, "User Does Not Exist"},
            {"login", "{e}&{p}={right}", 400, "User Does Not Exist"},
            {"login", "", 400, "User Does Not Exist"},
            {"login", "{e}=%FF&{p}={right}", 400, "Improper request"},
            {"login", "{e}=" + QByteArray(6000, 'x'), 400, "Improper request"},
            {"register", "{e}=new@wzt.example&{p}={right}&userName=New+One", 200, ""},
            {"register", "{e}=JO.smith@WZT.example&{p}={right}&userName=X", 200, "User Exists"},
            {"register", "{e}=&{p}={empty}&userName=", 400, "Improper request"},
            {"register", "{e}=new@wzt.example&{p}={right}", 400, "Improper request"},
            {"register", "{e}=new@wzt.example&{p}={right}&userName=+%20", 400, "Improper request"},
            {"register", "{e}=new@wzt.example&{p}={right}&userName=a%0D%0Ab", 400,
             "Improper request"},
            {"register", "{e}=new@wzt.example&{p}={right}&userName=" + QByteArray(101, 'n'), 400,
             "Improper request"},
            {"register", "{e}=new@wzt.example&{p}={empty}&userName=N", 400, "Improper request"},
            {"register", "{e}=new@wzt.example&{p}=ABC&userName=N", 400, "Improper request"},
            {"register", "{e}=new@wzt.example%0A&{p}={right}&userName=N", 400, "Improper request"},
            {"register", "{e}=+new@wzt.example&{p}={right}&userName=N", 400, "Improper request"},
            {"register", "{e}=new.@wzt.example&{p}={right}&userName=N", 400, "Improper request"},
            {"register", "{e}=new@wzt..example&{p}={right}&userName=N", 400, "Improper request"},
            {"passwordreset", "{jo}", 200, "Message has been sent"},
            {"passwordreset", "{e}=nobody@wzt.example", 200, "User Not Found"},
            {"passwordreset", "{e}=", 400, "User Not Found"},
            {"update", "{jo}&userOldPassword={right}", 200, ""},
            {"update", "{jo}&userOldPassword={wrong}&userName=N", 200, "Incorrect"},
            {"update", "{jo}&userName=N", 400, "Incorrect"},
            {"update", "{e}=nobody@wzt.example&userOldPassword={right}", 200, "User Not Found"},
            {"update", "{e}&userOldPassword={right}&userName=N", 400, "User Not Found"},
            {"update", "{jo}&userOldPassword={right}&userNewPassword=n", 400, "Improper request"},
            {"update", "{jo}&userOldPassword={right}&userName=%07", 400, "Improper request"},
            {"user", "{e}=JO.SMITH@wzt.example", 200, ""},
            {"user", "{e}=nobody@wzt.example", 200, "No User"},
            {"user", "{e}", 400, "Invalid Request"},
            {"user", "{e}=%C3%28", 400, "Invalid Request"},
        };
        QTest::addColumn<Outcome>("outcome");
        for (const auto &[path, items, status, result] : rows) {
            const bool posts =
                QByteArrayView(path) == "passwordreset" || QByteArrayView(path) == "update";
            QTest::addRow("%s %.60s", path, items.constData()) << Outcome(
                posts ? "POST" : "GET", query(path, items), status, QLatin1String(result));
        }
        for (const auto &[method, target, status, result] :
             {std::tuple("POST", QByteArray("/login.php"), 405L, "Method Not Allowed"),
              {"GET", "/update.php", 405L, "Method Not Allowed"},
              {"GET", "/passwordreset.php", 405L, "Method Not Allowed"},
              {"PUT", "/user.php", 405L, "Method Not Allowed"},
              {"GET", "/LOGIN.php", 404L, "Not Found"},
              {"GET", "/", 404L, "Not Found"},
              {"BAD METHOD", "/user.php", 400L, "Bad Request"},
              {"GET", "/user.php?" + QByteArray(70'000, 'x'), 414L, "URI Too Long"},
              {"GET", "/user.php?" + QByteArray(100'000, 'x'), 431L,
               "Request Header Fields Too Large"}})
            QTest::addRow("%s %.60s", method, target.constData())
                << Outcome(method, target, status, QLatin1String(result));
    }

    void outcome()
    {
        QFETCH(const Outcome, outcome);
        const auto &[method, target, status, result] = outcome;
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
        QCOMPARE(m_client.get(query("login", "{jo}&{p}={right}")).result(), QString());
    }

    void userReplyLeavesOutWhatIsAbsent()
    {
        sandbox::Account account = *m_service.account(jo);
        QJsonObject expected{{u"userTavloID"_s, account.number},
                             {u"userEmail"_s, jo},
                             {u"userName"_s, u"Jo"_s},
                             {u"userEarlyAdopterStatus"_s, 0},
                             {u"userJoined"_s, account.joined}};
        QCOMPARE(m_client.get(query("user", "{jo}")).json(), expected);

        account.name = u"Jö \"\\ 🙂"_s;
        account.reddit = u"r"_s;
        account.twitter = u""_s;
        account.earlyAdopter = true;
        QVERIFY(m_service.updateAccount(account));
        for (const auto &[key, value] :
             {std::pair<QString, QJsonValue>(u"userName"_s, account.name),
              {u"userReddit"_s, u"r"_s},
              {u"userTwitter"_s, u""_s},
              {u"userEarlyAdopterStatus"_s, 1}})
            expected[key] = value;
        QCOMPARE(m_client.get(query("user", "{jo}")).json(), expected);
        QCOMPARE(m_service.account(jo.toUpper()), account);
    }

    void registeredAccountIsKeptAsTyped()
    {
        const Answer made = m_client.get(
            query("register", "userEmail=New@wzt.example&{p}={new}&userName=+J%C3%B6+%2B1"));
        QCOMPARE(made.json().value(u"userName"_s).toString(), u" Jö +1"_s);
        QCOMPARE(made.json().value(u"userEmail"_s).toString(), u"New@wzt.example"_s);
        const auto joined = QDateTime::fromString(made.json().value(u"userJoined"_s).toString(),
                                                  u"yyyy-MM-dd HH:mm:ss"_s);
        QVERIFY(std::abs(joined.secsTo(QDateTime::currentDateTime())) < 60);
        QCOMPARE(m_client.get(query("login", "userEmail=new@wzt.example&{p}={new}")).json(),
                 made.json());
        QVERIFY(!m_service.addAccount({.email = u"NEW@wzt.example"_s, .name = u"X"_s}, u"x"_s));
    }

    void updateChangesWhatIsGivenAlone_data()
    {
        addCases<Update>({
            {"name", "&userName=Joanna", u"Joanna"_s, false},
            {"password", "&userName=&userNewPassword={new}", u"Jo"_s, true},
            {"both", "&userName=Joanna&userNewPassword={new}", u"Joanna"_s, true},
            {"neither", "&userName=&userNewPassword=", u"Jo"_s, false},
        });
    }

    void updateChangesWhatIsGivenAlone()
    {
        const auto &[what, items, name, changesPassword] = currentCase<Update>();
        const Answer updated =
            m_client.post(query("update", "{jo}&userOldPassword={right}" + items));
        QCOMPARE(updated.json().value(u"userName"_s).toString(), name);
        QCOMPARE(m_client.get(query("login", "{jo}&{p}={right}")).result(),
                 changesPassword ? u"Incorrect"_s : QString());
        QCOMPARE(m_client.get(query("login", "{jo}&{p}={new}")).result(),
                 changesPassword ? QString() : u"Incorrect"_s);
    }

    void accountsOutliveTheService()
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
        QCOMPARE(client.get(query("login", "{jo}&{p}={right}")).status, 200);
        const QFileInfoList files =
            QDir(again.directory()).entryInfoList(QDir::Files | QDir::System);
        QVERIFY(files.size() >= 6);
        const auto others =
            QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
        for (const QFileInfo &file : files)
            QVERIFY2(!(file.permissions() & others), qPrintable(file.fileName()));
        QFile database(again.directory() + u"/service.sqlite-wal"_s);
        QVERIFY(database.open(QFile::ReadOnly));
        QVERIFY(!database.readAll().contains(Sandbox::digestOf(u"secret"_s)));
    }

private:
    Sandbox m_service{Sandbox::Options{.hashMemory = size_t{1} << 20, .hashPasses = 1}};
    Client m_client{m_service.port(), m_service.caFile()};
};

WZT_TEST(AccountsTest)
#include "AccountsTest.moc"
