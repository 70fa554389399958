// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Figures.h"
#include "bench/Measurements.h"
#include "model/WZTPackageIssue.h"
#include "sandbox/DemoIssues.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int count = 31'000;
constexpr int decodingRounds = 9;

QByteArray reply()
{
    const QList<sandbox::Issue> issues = sandbox::demoIssues();
    QJsonArray elements;
    for (int i = 0; i < count; ++i) {
        const sandbox::Issue &issue = issues[i % issues.size()];
        elements.append(QJsonObject{
            {u"issueId"_s, i},
            {u"referenceId"_s, u"WZT-%1"_s.arg(i)},
            {u"packageId"_s, issue.package},
            {u"reporterId"_s, QString::number(issue.reporter)},
            {u"title"_s, issue.title},
            {u"description"_s, issue.description.value_or(QString())},
            {u"open"_s, int{issue.isOpen}},
            {u"openDate"_s, u"2026-11-16 09:30:00"_s},
        });
    }
    return QJsonDocument(elements).toJson(QJsonDocument::Compact);
}

qsizetype decode(const QByteArray &body)
{
    QList<WZTPackageIssue> issues;
    const QJsonArray elements = QJsonDocument::fromJson(body).array();
    for (const QJsonValue element : elements) {
        issues.append(WZTPackageIssue::initWithIssueParams(element.toObject()));
    }
    return issues.size();
}

} // namespace

void measureDecoding(const QStringList &)
{
    const QByteArray body = reply();
    QList<double> records;
    QList<double> document;
    for (int round = 0; round < decodingRounds; ++round) {
        records.append(timed([&] {
            if (decode(body) != count) {
                qFatal("not every issue was read");
            }
        }));
        document.append(timed([&] {
            if (QJsonDocument::fromJson(body).isNull()) {
                qFatal("no JSON");
            }
        }));
    }
    const Table table(u"Decoding %1 issues, %2 MiB, beside reading the JSON alone"_s.arg(count).arg(
                          static_cast<double>(body.size()) / 1024 / 1024, 0, 'f', 1),
                      {u"figure"_s, u"floor"_s, u"times"_s});
    table.comparison(u"records, ms"_s, median(records), median(document));
}
