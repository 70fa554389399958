// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTUser.h"
#include "platform/foundation/NSKeyedArchiver.h"
#include "platform/foundation/NSKeyedUnarchiver.h"
#include "tests/support/TestRunner.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A complete reply of the service, with the entries of `changes` laid over it.
QJsonObject reply(const QByteArray &changes = "{}")
{
    QJsonObject params = QJsonDocument::fromJson(R"({"userTavloID":7, "userEmail":"jo@wzt.example",
        "userName":"Jo", "userReddit":"jo_r", "userTwitter":"jo_t", "userDiscord":"jo#1",
        "userCydiaID":"123", "userEarlyAdopterStatus":1, "userJoined":"2019-08-14 17:05:09"})")
                             .object();
    const QJsonObject others = QJsonDocument::fromJson(changes).object();
    for (auto other = others.begin(); other != others.end(); ++other)
        params[other.key()] = other.value();
    return params;
}

WZTUser usualUser()
{
    WZTUser user(7, u"jo@wzt.example"_s, u"Jo"_s);
    user.redditUsername = u"jo_r"_s;
    user.twitterUsername = u"jo_t"_s;
    user.discordUsername = u"jo#1"_s;
    user.cydiaId = u"123"_s;
    user.earlyAdopter = true;
    user.joinDate = NSDate{587487909}; // of that moment in Berlin, where the tests run
    return user;
}

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
    void aReplyWithoutAUserMakesNone();
    void valuesAreReadForgivingly();
    void archivesUseTheirOwnKeys();
    void archivesGiveBackWhatTheyGot();
};

void WZTUserTest::aReplyWithoutAUserMakesNone()
{
    for (const char *changes :
         {R"({"userTavloID":0})", R"({"userTavloID":"0"})", R"({"userTavloID":"-3"})",
          R"({"userTavloID":-3})", R"({"userTavloID":0.9})", R"({"userTavloID":"abc"})",
          R"({"userTavloID":null})", R"({"userTavloID":[7]})", R"({"userEmail":""})",
          R"({"userEmail":null})", R"({"userName":""})", R"({"userName":{"a":1}})"})
        QVERIFY2(!WZTUser::initWithUserParams(reply(changes)), changes);
    for (const QString &key : {u"userTavloID"_s, u"userEmail"_s, u"userName"_s}) {
        QJsonObject params = reply();
        params.remove(key);
        QVERIFY2(!WZTUser::initWithUserParams(params), qPrintable(key));
    }
}

void WZTUserTest::valuesAreReadForgivingly()
{
    const auto isTrue = [](WZTUser &user) { user.earlyAdopter = true; };
    const auto isFalse = [](WZTUser &user) { user.earlyAdopter = false; };
    const auto hasNoDate = [](WZTUser &user) { user.joinDate = std::nullopt; };
    const std::pair<const char *, std::function<void(WZTUser &)>> rows[] = {
        {"{}", isTrue},
        {R"({"userTavloID":"12abc"})", [](WZTUser &user) { user.tavloId = 12; }},
        {R"({"userTavloID":1e12})", [](WZTUser &user) { user.tavloId = INT_MAX; }},
        {R"({"userName":42})", [](WZTUser &user) { user.userName = u"42"_s; }},
        {R"({"userReddit":""})", [](WZTUser &user) { user.redditUsername = u""_s; }},
        {R"({"userTwitter":null})", [](WZTUser &user) { user.twitterUsername = {}; }},
        {R"({"userDiscord":[]})", [](WZTUser &user) { user.discordUsername = {}; }},
        {R"({"userCydiaID":7.5})", [](WZTUser &user) { user.cydiaId = u"7.5"_s; }},
        {R"({"userEarlyAdopterStatus":"true"})", isTrue},
        {R"({"userEarlyAdopterStatus":" +0y"})", isTrue},
        {R"({"userEarlyAdopterStatus":"0"})", isFalse},
        {R"({"userEarlyAdopterStatus":0})", isFalse},
        {R"({"userEarlyAdopterStatus":null})", isFalse},
        {R"({"userJoined":"2019-08-14"})", hasNoDate},
        {R"({"userJoined":"14/08/2019 17:05"})", hasNoDate},
        {R"({"userJoined":"2019-02-30 00:00:00"})", hasNoDate},
        {R"({"userJoined":20190814170509})", hasNoDate},
        {R"({"userJoined":null})", hasNoDate},
    };
    for (const auto &[changes, change] : rows) {
        WZTUser expected = usualUser();
        change(expected);
        QVERIFY2(WZTUser::initWithUserParams(reply(changes)) == expected, changes);
    }
}

void WZTUserTest::archivesUseTheirOwnKeys()
{
    NSCoder coder;
    usualUser().encodeWithCoder(coder);
    QCOMPARE(coder.decodeIntForKey(u"tavloId"_s), 7);
    QVERIFY(coder.decodeBoolForKey(u"earlyAdopter"_s));
    QCOMPARE(coder.decodeDateForKey(u"joinDate"_s), usualUser().joinDate);
    const std::pair<QString, QString> texts[] = {
        {u"email"_s, u"jo@wzt.example"_s}, {u"username"_s, u"Jo"_s},  {u"reddit"_s, u"jo_r"_s},
        {u"twitter"_s, u"jo_t"_s},         {u"discord"_s, u"jo#1"_s}, {u"cydiaId"_s, u"123"_s},
    };
    for (const auto &[key, text] : texts)
        QCOMPARE(coder.decodeStringForKey(key), text);

    NSCoder bare;
    WZTUser(1, {}, {}).encodeWithCoder(bare);
    QCOMPARE(bare.values().keys().join(u' '), u"earlyAdopter email joinDate tavloId username"_s);
}

void WZTUserTest::archivesGiveBackWhatTheyGot()
{
    WZTUser changed = usualUser();
    changed.redditUsername = u""_s;
    changed.earlyAdopter = false;
    for (const WZTUser &user : {usualUser(), changed, WZTUser(-5, {}, u"Jö"_s)})
        QVERIFY(throughArchive(user) == user);

    // One that lacks everything is a user all the same.
    QVERIFY(WZTUser::initWithCoder(NSCoder()) == WZTUser(0, {}, {}));
}

WZT_TEST(WZTUserTest)
#include "WZTUserTest.moc"
