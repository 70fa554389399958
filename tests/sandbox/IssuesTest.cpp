// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/Database.h"
#include "sandbox/Packages.h"
#include "sandbox/Sandbox.h"
#include "tests/sandbox/Client.h"
#include "tests/support/TestRunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using sandbox::Issue;
using sandbox::Sandbox;

/// The two issue endpoints as a client sees them, and the issues behind them.
class IssuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusals_data();
    void refusals();
    void listedNewestFirst();
    void submissionsAreKeptAsSent();
    void anOlderFileIsBroughtUpToDate();

private:
    /// {p} stands for a package.
    static QByteArray filled(QByteArray target)
    {
        return target.replace("{p}", sandbox::packages()[0].toLatin1());
    }

    Sandbox m_service;
    Client m_client{m_service.port(), m_service.caFile()};
};

void IssuesTest::refusals_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<long>("status");
    QTest::addColumn<QString>("result");
    const std::tuple<const char *, const char *, long, const char *> rows[] = {
        {"GET", "/issues.php?packageId={p}x", 200, "Unknown Package"},
        {"GET", "/issues.php?packageId=pintle", 200, "Unknown Package"},
        {"GET", "/issues.php?packageId=", 400, "Unknown Package"},
        {"GET", "/issues.php", 400, "Unknown Package"},
        {"GET", "/issues.php?packageId=%FF", 400, "Improper request"},
        {"POST", "/issues.php?packageId={p}", 405, "Method Not Allowed"},
        {"POST", "/submitissue.php?packageId={p}x&title=t&reporterId=1", 200, "Unknown Package"},
        {"POST", "/submitissue.php?title=t&reporterId=1", 400, "Unknown Package"},
        {"POST", "/submitissue.php?packageId={p}&title=&reporterId=1", 400, "Improper request"},
        {"POST", "/submitissue.php?packageId={p}&reporterId=1", 400, "Improper request"},
        {"POST", "/submitissue.php?packageId={p}&title=t", 400, "Improper request"},
        {"POST", "/submitissue.php?packageId={p}&title=t&reporterId=x", 400, "Improper request"},
        {"POST", "/submitissue.php?packageId={p}&title=t&reporterId=-1", 400, "Improper request"},
        {"GET", "/submitissue.php?packageId={p}&title=t&reporterId=1", 405, "Method Not Allowed"},
    };
    for (const auto &[method, target, status, result] : rows)
        QTest::addRow("%s", target) << QByteArray(method) << status << QString::fromLatin1(result);
}

void IssuesTest::refusals()
{
    QFETCH(const QByteArray, method);
    QFETCH(const long, status);
    QFETCH(const QString, result);
    const int count = m_service.issueCount();
    const Answer answer =
        m_client.send({.method = method, .target = filled(QTest::currentDataTag())});
    QCOMPARE(answer.status, status);
    QCOMPARE(answer.json(), (QJsonObject{{u"result"_s, result}}));
    QCOMPARE(m_service.issueCount(), count);
}

void IssuesTest::listedNewestFirst()
{
    const QString package = sandbox::packages()[1];
    const auto issue = [&](const QString &title, const QString &opened) {
        return m_service.addIssue({.package = package, .title = title, .opened = opened});
    };
    const auto oldest = issue(u"oldest"_s, u"2020-01-05 10:00:00"_s);
    const auto newest = issue(u"newest"_s, u"2021-01-05 10:00:00"_s);
    const auto second = issue(u"second of a moment"_s, u"2020-01-05 10:00:00"_s);
    QVERIFY(m_service.addIssue({.package = sandbox::packages()[2], .title = u"elsewhere"_s}));
    QVERIFY(oldest && newest && second);
    QCOMPARE(m_service.issues(package), (QList<Issue>{*newest, *second, *oldest}));

    const Issue full{.number = newest->number + 3,
                     .reference = u"ref"_s,
                     .package = package,
                     .reporter = 42,
                     .title = u"Ü \"\\ 🙂"_s,
                     .description = u"a\n\nb"_s,
                     .isOpen = false,
                     .opened = u"2022-03-04 05:06:07"_s};
    QVERIFY(m_service.addIssues({full}));
    const QJsonArray list =
        QJsonDocument::fromJson(m_client.get("/issues.php?packageId=" + package.toLatin1()).body)
            .array();
    QCOMPARE(list.size(), 4);
    QCOMPARE(list[0].toObject(),
             (QJsonObject{{u"issueId"_s, full.number},
                          {u"referenceId"_s, u"ref"_s},
                          {u"packageId"_s, package},
                          {u"reporterId"_s, u"42"_s},
                          {u"title"_s, full.title},
                          {u"description"_s, u"a\n\nb"_s},
                          {u"open"_s, 0},
                          {u"openDate"_s, u"2022-03-04 05:06:07"_s}}));
    QVERIFY(list[1][u"description"].isNull());
    QCOMPARE(list[1][u"open"], QJsonValue(1));
}

void IssuesTest::submissionsAreKeptAsSent()
{
    const auto submit = [this](const QByteArray &items) {
        const Answer answer =
            m_client.post(filled("/submitissue.php?packageId={p}&reporterId=7&title=" + items));
        return answer.json()[u"issueId"_s].toInteger();
    };
    const qint64 first = submit("+J%C3%B6+%2B1");
    m_service.advanceClock(1h);
    const qint64 second = submit("b&description=x%0Ay");
    const qint64 third = submit("c&description");
    const QString package = sandbox::packages()[0];
    const QList<Issue> issues = m_service.issues(package);
    QCOMPARE(issues.size(), 3);
    const auto issue = [&](qsizetype i, qint64 number, const QString &title,
                           const std::optional<QString> &description) {
        const auto &[reference, opened] = std::tie(issues[i].reference, issues[i].opened);
        return Issue{number, reference, package, 7, title, description, true, opened};
    };
    QCOMPARE(issues,
             (QList<Issue>{issue(0, third, u"c"_s, u""_s), issue(1, second, u"b"_s, u"x\ny"_s),
                           issue(2, first, u" Jö +1"_s, {})}));
    QVERIFY(!issues[0].reference.isEmpty() && issues[0].reference != issues[1].reference);
    const auto opened = [&](qsizetype i) {
        return QDateTime::fromString(issues[i].opened, u"yyyy-MM-dd HH:mm:ss"_s);
    };
    QVERIFY(std::abs(opened(2).secsTo(QDateTime::currentDateTime())) < 60);
    QVERIFY(opened(2).secsTo(opened(1)) >= 3600);
}

void IssuesTest::anOlderFileIsBroughtUpToDate()
{
    const QTemporaryDir folder;
    const QString email = u"jo@wzt.example"_s;
    const Sandbox::Options options{.directory = folder.path()};
    const Issue issue{.package = u"p"_s, .title = u"t"_s};
    QVERIFY(Sandbox(options).addAccount({.email = email, .name = u"Jo"_s}, u"secret"_s));
    {
        // As the first version left it, which had accounts alone.
        sandbox::Database database;
        QCOMPARE(database.open(folder.path() + u"/service.sqlite"_s), QString());
        QVERIFY(database.run("DROP TABLE issues; PRAGMA user_version=1;"));
    }
    QVERIFY(Sandbox(options).addIssue(issue));
    const Sandbox again(options);
    QCOMPARE(again.issues(u"p"_s).size(), 1);
    QVERIFY(again.account(email));
}

WZT_TEST(IssuesTest)

#include "IssuesTest.moc"
