// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/IssueReply.h"
#include "harness/TestRunner.h"

using namespace Qt::StringLiterals;

/// Lists of issues, shorter and longer than the pieces that they are read in.
class IssueReplyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsBecomeIssues()
    {
        // The code, and the titles where a list is handed over.
        const QByteArray most = '[' + QByteArray("1,{},").repeated(100'000);
        // Longer than the pieces that a list is read in.
        const QByteArray gap(70'000, ' ');
        QByteArrayList elements;
        QStringList distinct;
        for (int i = 0; i < 5'000; ++i) {
            elements.append(u"{\"title\":\"\\\"},{\\\\%1\\\\\",\"\":[{},[1,2]]}"_s.arg(i).toUtf8());
            distinct.append(u"\"},{\\%1\\"_s.arg(i));
        }
        const std::tuple<QByteArray, NSUInteger, std::optional<QStringList>> rows[] = {
            {"[]", 0, {}},
            {most + "1]", 1, QStringList(100'000, u"nil"_s)},
            {most + "{}]", 2, {}},
            {R"([1,{"title":"b"},null,"b",[{"title":"c"}],{}])", 1, {{u"b"_s, u"nil"_s}}},
            {R"([1,null,"b",[]])", 1, QStringList()},
            {R"({"title":"a"})", 2, {}},
            {R"([{"title":"a"})", 2, {}},
            {"[] and", 2, {}},
            {'[' + elements.join(',') + ']', 1, distinct},
            {'[' + elements.join(',') + "]]", 2, {}},
            {'[' + elements.join(','), 2, {}},
            {"[{}" + gap + ",{}" + gap + ']', 1, {{u"nil"_s, u"nil"_s}}},
            {"[{}" + gap + ',' + gap + ']', 2, {}},
            {"[{}" + gap + ',' + gap + ",{}]", 2, {}},
            {R"({"title":"a")" + gap + R"(,"open":1})", 2, {}},
            {"[\"\xff\"]", 2, {}},
        };
        for (const auto &[body, code, titles] : rows) {
            const IssueReply reply = IssueReply::fromBody(body);
            QVERIFY2(reply.code == code, body.left(80).constData());
            QVERIFY2(reply.issues.has_value() == titles.has_value(), body.left(80).constData());
            QStringList found;
            for (const WZTPackageIssue &issue : reply.issues.value_or(QList<WZTPackageIssue>())) {
                found.append(issue.title.value_or(u"nil"_s));
            }
            QCOMPARE(found, titles.value_or(QStringList()));
        }
    }
};

WZT_TEST(IssueReplyTest)
#include "IssueReplyTest.moc"
