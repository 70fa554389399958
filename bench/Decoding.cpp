// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "bench/Decoding.h"

#include "bench/Figures.h"
#include "bench/Instructions.h"
#include "bench/Measurements.h"
#include "sandbox/DemoIssues.h"
#include "service/IssueReply.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int count = 31'000;
constexpr int decodingRounds = 9;
constexpr int decodingPatience = 60'000;
constexpr double mebibyte = 1024 * 1024;

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

void readRecords(QByteArray &&body)
{
    const IssueReply reply = IssueReply::fromBody(std::move(body));
    if (reply.issues.value_or(QList<WZTPackageIssue>()).size() != count) {
        qFatal("not every issue was read");
    }
}

void readDocument(QByteArray &&body)
{
    if (QJsonDocument::fromJson(body).isNull()) {
        qFatal("no JSON");
    }
}

void readNothing(QByteArray &&) {}

using Reader = void (*)(QByteArray &&body);

constexpr std::pair<const char *, Reader> readers[] = {
    {"nothing", readNothing},
    {"document", readDocument},
    {"records", readRecords},
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        qFatal("there is no body");
    }
    return file.readAll();
}

/// This program again, with one of the readers.
Command command(const char *reader, const QString &body)
{
    return {.program = QCoreApplication::applicationFilePath(),
            .arguments = {u"decode"_s, QLatin1StringView(reader), body}};
}

double peakOf(const Command &command)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(command.program, command.arguments);
    if (!process.waitForFinished(decodingPatience) || process.exitCode() != 0) {
        qFatal("the list cannot be decoded");
    }
    return process.readAll().toDouble();
}

double medianTime(Reader reader, const QByteArray &body)
{
    QList<double> times;
    for (int round = 0; round < decodingRounds; ++round) {
        QByteArray copy(body.constData(), body.size());
        times.append(timed([&] { reader(std::move(copy)); }));
    }
    return median(times);
}

} // namespace

void decode(const QStringList &arguments)
{
    for (const auto &[name, reader] : readers) {
        if (arguments.value(0) == QLatin1StringView(name)) {
            reader(reader == readNothing ? QByteArray() : contents(arguments.value(1)));
        }
    }
    std::printf("%f\n", peakMebibytes());
}

void measureDecoding(const QStringList &)
{
    const QByteArray body = reply();
    QTemporaryFile file;
    if (!file.open() || file.write(body) != body.size() || !file.flush()) {
        qFatal("the body cannot be kept");
    }
    const double size = static_cast<double>(body.size()) / mebibyte;
    const double none = millionInstructions(command("nothing", file.fileName()));
    const double own = peakOf(command("nothing", file.fileName()));
    const Table table(u"Decoding %1 issues, beside reading the JSON alone"_s.arg(count),
                      {u"figure"_s, u"floor"_s, u"times"_s});
    table.comparison(u"records, ms"_s, medianTime(readRecords, body),
                     medianTime(readDocument, body));
    table.comparison(u"records, million instructions"_s,
                     millionInstructions(command("records", file.fileName())) - none,
                     millionInstructions(command("document", file.fileName())) - none);
    table.comparison(u"most memory, MiB, beside the reply"_s,
                     peakOf(command("records", file.fileName())) - own, size);
}
