// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "harness/TestRunner.h"
#include "model/BuildConstants.h"
#include "model/WZTPackage.h"
#include "model/WZTPackageIssue.h"
#include "model/WZTUser.h"
#include "platform/foundation/coding/NSCoder.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

using Values = QMap<QString, NSCoder::Value>;

const NSCoder::Value absent;

constexpr char userReply[] = R"({"userTavloID":7, "userEmail":"jo@wzt.example", "userName":"Jo",
    "userReddit":"jo_r", "userTwitter":"jo_t", "userDiscord":"jo#1", "userCydiaID":"123",
    "userEarlyAdopterStatus":1, "userJoined":"2019-08-14 17:05:09"})";

constexpr char issueReply[] = R"({"issueId":17, "referenceId":"a1", "packageId":"p",
    "reporterId":"7", "title":"Crash", "description":"Steps\n…", "open":1,
    "openDate":"2020-01-05 10:00:00"})";

/// A complete reply of the service, with the entries of `changes` laid over it.
QJsonObject reply(const char *whole, const QByteArray &changes)
{
    QJsonObject params = QJsonDocument::fromJson(whole).object();
    const QJsonObject others = QJsonDocument::fromJson(changes).object();
    for (auto other = others.begin(); other != others.end(); ++other) {
        params[other.key()] = other.value();
    }
    return params;
}

template <typename Record>
Values archived(const Record &record)
{
    NSCoder coder;
    record.encodeWithCoder(coder);
    return coder.values();
}

template <typename Record>
Record unarchived(const Values &values)
{
    NSCoder coder;
    for (auto value = values.begin(); value != values.end(); ++value) {
        coder.encodeValue(*value, value.key());
    }
    return Record::initWithCoder(coder);
}

} // namespace

/// The records as replies make them and as archives keep them, with moments of Berlin, where the
/// tests run.
class RecordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aReplyWithoutAUserMakesNone()
    {
        for (const char *changes :
             {R"({"userTavloID":0})", R"({"userTavloID":"-3"})", R"({"userTavloID":0.9})",
              R"({"userTavloID":null})", R"({"userTavloID":[7]})", R"({"userEmail":""})",
              R"({"userEmail":null})", R"({"userName":""})", R"({"userName":{"a":1}})"}) {
            QVERIFY2(!WZTUser::initWithUserParams(reply(userReply, changes)), changes);
        }
    }

    void aUserIsReadForgivingly()
    {
        const Values whole{
            {u"tavloId"_s, qint64{7}},          {u"email"_s, u"jo@wzt.example"_s},
            {u"username"_s, u"Jo"_s},           {u"reddit"_s, u"jo_r"_s},
            {u"twitter"_s, u"jo_t"_s},          {u"discord"_s, u"jo#1"_s},
            {u"cydiaId"_s, u"123"_s},           {u"earlyAdopter"_s, true},
            {u"joinDate"_s, NSDate{587487909}},
        };
        const std::tuple<const char *, QString, NSCoder::Value> rows[] = {
            {"{}", u"tavloId"_s, qint64{7}},
            {R"({"userTavloID":"12abc"})", u"tavloId"_s, qint64{12}},
            {R"({"userName":42})", u"username"_s, u"42"_s},
            {R"({"userReddit":""})", u"reddit"_s, u""_s},
            {R"({"userCydiaID":7.5})", u"cydiaId"_s, u"7.5"_s},
            {R"({"userEarlyAdopterStatus":"+0y"})", u"earlyAdopter"_s, true},
            {R"({"userEarlyAdopterStatus":"0"})", u"earlyAdopter"_s, false},
            {R"({"userEarlyAdopterStatus":null})", u"earlyAdopter"_s, false},
            {R"({"userJoined":"2019-08-14"})", u"joinDate"_s, absent},
            {R"({"userJoined":20190814170509})", u"joinDate"_s, absent},
        };
        for (const auto &[changes, key, value] : rows) {
            Values expected = whole;
            expected[key] = value;
            const auto user = WZTUser::initWithUserParams(reply(userReply, changes));
            QVERIFY2(user && archived(*user) == expected, changes);
            QVERIFY2(unarchived<WZTUser>(expected) == user, changes);
        }
        const char bare[] = R"({"userReddit":null, "userTwitter":[], "userDiscord":{},
                                "userCydiaID":true})";
        const auto user = WZTUser::initWithUserParams(reply(userReply, bare));
        QCOMPARE(archived(*user).keys().join(u' '),
                 u"earlyAdopter email joinDate tavloId username"_s);
        QVERIFY(unarchived<WZTUser>({}) == WZTUser(0, {}, {}));
        QCOMPARE(WZTUser::className, "WZTUser"_L1); // a kept sign-in is found by it
    }

    void anIssueIsReadForgivingly()
    {
        const Values whole{
            {u"issueId"_s, u"17"_s},  {u"referenceId"_s, u"a1"_s},
            {u"packageId"_s, u"p"_s}, {u"reporterId"_s, u"7"_s},
            {u"title"_s, u"Crash"_s}, {u"issueDescription"_s, u"Steps\n…"_s},
            {u"open"_s, true},        {u"openDate"_s, NSDate{599907600}},
        };
        const std::tuple<const char *, QString, NSCoder::Value> rows[] = {
            {"{}", u"open"_s, true},
            {R"({"issueId":9007199254740993})", u"issueId"_s, u"9007199254740993"_s},
            {R"({"referenceId":1.5})", u"referenceId"_s, u"1.5"_s},
            {R"({"packageId":{"a":1}})", u"packageId"_s, absent},
            {R"({"reporterId":true})", u"reporterId"_s, absent},
            {R"({"title":""})", u"title"_s, u""_s},
            {R"({"description":null})", u"issueDescription"_s, absent},
            {R"({"issueDescription":"its key in archives"})", u"open"_s, true},
            {R"({"open":"YES"})", u"open"_s, true},
            {R"({"open":"no"})", u"open"_s, false},
            {R"({"openDate":"05/01/2020 10:00"})", u"openDate"_s, absent},
        };
        for (const auto &[changes, key, value] : rows) {
            Values expected = whole;
            expected[key] = value;
            const auto issue = WZTPackageIssue::initWithIssueParams(reply(issueReply, changes));
            QVERIFY2(archived(issue) == expected, changes);
            QVERIFY2(unarchived<WZTPackageIssue>(expected) == issue, changes);
        }
        QVERIFY(WZTPackageIssue::initWithIssueParams({}) == unarchived<WZTPackageIssue>({}));
    }

    void everyCallMakesTheSameProjectsAnew()
    {
        const auto packages = WZTPackage::allPackages();
        QString text;
        for (const auto &package : packages) {
            text += package->bundleIdentifier + u' ' + package->name + u'|';
        }
        QCOMPARE(text.remove(QLatin1StringView(BuildConstants::vendorPrefix)),
                 u".pintle Pintle|.itsmarrow Marrow!|.qelvan QELVAN|.tessaroo tessaroo|"
                 ".halden3 Halden 3|.kiteloom KiteLoom|"_s);
        QVERIFY(packages[0] != WZTPackage::allPackages()[0]);
    }
};

WZT_TEST(RecordsTest)
#include "RecordsTest.moc"
