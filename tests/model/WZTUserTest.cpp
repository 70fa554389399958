// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTUser.h"
#include "platform/foundation/NSKeyedArchiver.h"
#include "platform/foundation/NSKeyedUnarchiver.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A complete reply of the service, with `changes` laid over it.
QJsonObject reply(const QJsonObject &changes = {})
{
    QJsonObject params{{u"userTavloID"_s, 7},
                       {u"userEmail"_s, u"jo@wzt.example"_s},
                       {u"userName"_s, u"Jo Süß"_s},
                       {u"userReddit"_s, u"jo_r"_s},
                       {u"userTwitter"_s, u"jo_t"_s},
                       {u"userDiscord"_s, u"jo#1"_s},
                       {u"userCydiaID"_s, u"12345"_s},
                       {u"userEarlyAdopterStatus"_s, 1},
                       {u"userJoined"_s, u"2019-08-14 17:05:09"_s}};
    for (auto change = changes.begin(); change != changes.end(); ++change)
        params[change.key()] = change.value();
    return params;
}

/// 2019-08-14 17:05:09 in Berlin, where the tests run.
constexpr NSDate joined{587487909};

std::optional<WZTUser> throughArchive(const WZTUser &user)
{
    const auto data = NSKeyedArchiver::archivedDataWithRootObject(user, WZTUser::className);
    const auto coder =
        NSKeyedUnarchiver::unarchiveObjectWithData(data.value_or(QByteArray()), WZTUser::className);
    return coder ? std::optional(WZTUser::initWithCoder(*coder)) : std::nullopt;
}

} // namespace

class WZTUserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyParameterReachesItsField();
    void aReplyWithoutAUserMakesNone_data();
    void aReplyWithoutAUserMakesNone();
    void oddValuesAreRead_data();
    void oddValuesAreRead();
    void archivesUseTheirOwnKeys();
    void archivesGiveBackWhatTheyGot();
    void anArchiveThatLacksFieldsIsAUserAllTheSame();
};

void WZTUserTest::everyParameterReachesItsField()
{
    const auto user = WZTUser::initWithUserParams(reply());
    QVERIFY(user);
    QCOMPARE(user->tavloId, 7);
    QCOMPARE(user->email, u"jo@wzt.example"_s);
    QCOMPARE(user->userName, u"Jo Süß"_s);
    QCOMPARE(user->redditUsername, u"jo_r"_s);
    QCOMPARE(user->twitterUsername, u"jo_t"_s);
    QCOMPARE(user->discordUsername, u"jo#1"_s);
    QCOMPARE(user->cydiaId, u"12345"_s);
    QVERIFY(user->earlyAdopter);
    QCOMPARE(user->joinDate, joined);
}

void WZTUserTest::aReplyWithoutAUserMakesNone_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    const QJsonValue missing(QJsonValue::Undefined);
    const std::tuple<const char *, QString, QJsonValue> rows[] = {
        {"number 0", u"userTavloID"_s, 0},
        {"text 0", u"userTavloID"_s, u"0"_s},
        {"text -3", u"userTavloID"_s, u"-3"_s},
        {"number -3", u"userTavloID"_s, -3},
        {"0.9 is truncated", u"userTavloID"_s, 0.9},
        {"no digits", u"userTavloID"_s, u"abc"_s},
        {"null number", u"userTavloID"_s, QJsonValue()},
        {"list as number", u"userTavloID"_s, QJsonArray{7}},
        {"no number", u"userTavloID"_s, missing},
        {"empty e-mail", u"userEmail"_s, u""_s},
        {"null e-mail", u"userEmail"_s, QJsonValue()},
        {"no e-mail", u"userEmail"_s, missing},
        {"empty name", u"userName"_s, u""_s},
        {"object as name", u"userName"_s, QJsonObject{{u"a"_s, 1}}},
        {"no name", u"userName"_s, missing},
    };
    for (const auto &[name, key, value] : rows)
        QTest::newRow(name) << key << value;
}

void WZTUserTest::aReplyWithoutAUserMakesNone()
{
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, value);
    QJsonObject params = reply();
    params.remove(key);
    if (!value.isUndefined())
        params[key] = value;
    QVERIFY(!WZTUser::initWithUserParams(params));
}

void WZTUserTest::oddValuesAreRead_data()
{
    QTest::addColumn<QJsonObject>("changes");
    QTest::addColumn<WZTUser>("expected");
    const WZTUser usual = WZTUser::initWithUserParams(reply()).value();
    const auto row = [&](const char *name, const char *json, auto change) {
        WZTUser expected = usual;
        change(expected);
        QTest::newRow(name) << QJsonDocument::fromJson(json).object() << expected;
    };
    row("digits before letters", R"({"userTavloID":"12abc"})", [](WZTUser &u) { u.tavloId = 12; });
    row("beyond 32 bits", R"({"userTavloID":1e12})", [](WZTUser &u) { u.tavloId = INT_MAX; });
    row("numbers for texts", R"({"userName":42,"userCydiaID":7.5})", [](WZTUser &u) {
        u.userName = u"42"_s;
        u.cydiaId = u"7.5"_s;
    });
    row("null is no text", R"({"userReddit":null,"userTwitter":[],"userDiscord":{}})",
        [](WZTUser &u) {
            u.redditUsername = u.twitterUsername = u.discordUsername = std::nullopt;
        });
    row("an empty text stays", R"({"userReddit":""})",
        [](WZTUser &u) { u.redditUsername = QString(); });
    for (const char *json :
         {R"(["1","true","YES",2,true," +0y"])", R"(["0","false","no",0,"",null])"}) {
        const bool expected = json[2] == '1';
        for (const QJsonValue status : QJsonDocument::fromJson(json).array()) {
            const QJsonObject changes{{u"userEarlyAdopterStatus"_s, status}};
            WZTUser user = usual;
            user.earlyAdopter = expected;
            QTest::newRow(QJsonDocument(changes).toJson().constData()) << changes << user;
        }
    }
    for (const char *date :
         {"2019-08-14", "14/08/2019 17:05", "2019-02-30 00:00:00", "2019-08-14 17:05:09 UTC", ""}) {
        WZTUser user = usual;
        user.joinDate = std::nullopt;
        QTest::addRow("no date: \"%s\"", date)
            << QJsonObject{{u"userJoined"_s, QLatin1StringView(date)}} << user;
    }
}

void WZTUserTest::oddValuesAreRead()
{
    QFETCH(const QJsonObject, changes);
    QFETCH(const WZTUser, expected);
    QVERIFY(WZTUser::initWithUserParams(reply(changes)) == expected);
}

void WZTUserTest::archivesUseTheirOwnKeys()
{
    const WZTUser user = WZTUser::initWithUserParams(reply()).value();
    NSCoder coder;
    user.encodeWithCoder(coder);
    QCOMPARE(coder.decodeIntForKey(u"tavloId"_s), 7);
    QCOMPARE(coder.decodeStringForKey(u"email"_s), user.email);
    QCOMPARE(coder.decodeStringForKey(u"username"_s), user.userName);
    QCOMPARE(coder.decodeStringForKey(u"reddit"_s), user.redditUsername);
    QCOMPARE(coder.decodeStringForKey(u"twitter"_s), user.twitterUsername);
    QCOMPARE(coder.decodeStringForKey(u"discord"_s), user.discordUsername);
    QCOMPARE(coder.decodeStringForKey(u"cydiaId"_s), user.cydiaId);
    QCOMPARE(coder.decodeDateForKey(u"joinDate"_s), user.joinDate);
    QVERIFY(coder.decodeBoolForKey(u"earlyAdopter"_s));

    NSCoder bare;
    WZTUser(1, {}, {}).encodeWithCoder(bare);
    QCOMPARE(
        bare.values().keys(),
        QStringList({u"earlyAdopter"_s, u"email"_s, u"joinDate"_s, u"tavloId"_s, u"username"_s}));
}

void WZTUserTest::archivesGiveBackWhatTheyGot()
{
    WZTUser user = WZTUser::initWithUserParams(reply()).value();
    QVERIFY(throughArchive(user) == user);
    user.redditUsername = u""_s;
    user.earlyAdopter = false;
    QVERIFY(throughArchive(user) == user);
    const WZTUser bare(-5, {}, u"Jo"_s);
    QVERIFY(throughArchive(bare) == bare);
}

void WZTUserTest::anArchiveThatLacksFieldsIsAUserAllTheSame()
{
    QVERIFY(WZTUser::initWithCoder(NSCoder()) == WZTUser(0, {}, {}));
    NSCoder coder;
    coder.encodeObject(u"31 or so"_s, u"tavloId"_s);
    QCOMPARE(WZTUser::initWithCoder(coder).tavloId, 31);
}

QTEST_GUILESS_MAIN(WZTUserTest)
#include "WZTUserTest.moc"
