// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackageIssue.h"
#include "platform/foundation/NSKeyedArchiver.h"
#include "platform/foundation/NSKeyedUnarchiver.h"
#include "tests/support/TestRunner.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const WZTPackageIssue nothing({}, {}, {}, {}, {}, {}, false, {});

WZTPackageIssue usualIssue()
{
    // Of that moment in Berlin, where the tests run: 2020-01-05 10:00:00.
    return {u"17"_s,       u"a1"_s, u"p"_s,           u"7"_s, u"Crash on launch"_s,
            u"Steps\n…"_s, true,    NSDate{599907600}};
}

} // namespace

class WZTPackageIssueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parametersAreReadForgivingly();
    void archivesUseTheirOwnKeys();
    void archivesGiveBackWhatTheyGot();
};

void WZTPackageIssueTest::parametersAreReadForgivingly()
{
    const std::pair<const char *, std::function<void(WZTPackageIssue &)>> rows[] = {
        {"{}", [](auto &) {}},
        {R"({"issueId":17, "referenceId":"a1", "packageId":"p", "reporterId":"7",
             "title":"Crash on launch", "description":"Steps\n…", "open":1,
             "openDate":"2020-01-05 10:00:00"})",
         [](auto &issue) { issue = usualIssue(); }},
        {R"({"issueId":9007199254740993})",
         [](auto &issue) { issue.issueId = u"9007199254740993"_s; }},
        {R"({"referenceId":1.5})", [](auto &issue) { issue.referenceId = u"1.5"_s; }},
        {R"({"packageId":{"a":1}, "reporterId":true, "title":[], "description":null})",
         [](auto &) {}},
        {R"({"title":"", "description":" "})",
         [](auto &issue) {
             issue.title = u""_s;
             issue.issueDescription = u" "_s;
         }},
        {R"({"issueDescription":"the archive's key"})", [](auto &) {}},
        {R"({"open":"YES"})", [](auto &issue) { issue.open = true; }},
        {R"({"open":"1"})", [](auto &issue) { issue.open = true; }},
        {R"({"open":true})", [](auto &issue) { issue.open = true; }},
        {R"({"open":0})", [](auto &) {}},
        {R"({"open":"0"})", [](auto &) {}},
        {R"({"open":"no"})", [](auto &) {}},
        {R"({"openDate":"2020-01-05"})", [](auto &) {}},
        {R"({"openDate":"05/01/2020 10:00"})", [](auto &) {}},
        {R"({"openDate":"2020-01-05 10:00:00 "})", [](auto &) {}},
        {R"({"openDate":20200105})", [](auto &) {}},
    };
    for (const auto &[params, change] : rows) {
        WZTPackageIssue expected = nothing;
        change(expected);
        const auto document = QJsonDocument::fromJson(params);
        QVERIFY2(document.isObject(), params);
        QVERIFY2(WZTPackageIssue::initWithIssueParams(document.object()) == expected, params);
    }
}

void WZTPackageIssueTest::archivesUseTheirOwnKeys()
{
    NSCoder coder;
    usualIssue().encodeWithCoder(coder);
    const QMap<QString, NSCoder::Value> values{
        {u"issueId"_s, u"17"_s},
        {u"referenceId"_s, u"a1"_s},
        {u"packageId"_s, u"p"_s},
        {u"reporterId"_s, u"7"_s},
        {u"title"_s, u"Crash on launch"_s},
        {u"issueDescription"_s, u"Steps\n…"_s},
        {u"open"_s, true},
        {u"openDate"_s, *usualIssue().openDate},
    };
    QVERIFY(coder.values() == values);

    // What is nil is written too, and nothing else.
    NSCoder bare;
    nothing.encodeWithCoder(bare);
    QCOMPARE(bare.values().keys(), values.keys());
}

void WZTPackageIssueTest::archivesGiveBackWhatTheyGot()
{
    for (const WZTPackageIssue &issue : {usualIssue(), nothing}) {
        const auto data =
            NSKeyedArchiver::archivedDataWithRootObject(issue, WZTPackageIssue::className);
        const auto coder = NSKeyedUnarchiver::unarchiveObjectWithData(data.value_or(QByteArray()),
                                                                      u"WZTPackageIssue"_s);
        QVERIFY(coder && WZTPackageIssue::initWithCoder(*coder) == issue);
    }
    QVERIFY(WZTPackageIssue::initWithCoder(NSCoder()) == nothing);
}

WZT_TEST(WZTPackageIssueTest)
#include "WZTPackageIssueTest.moc"
