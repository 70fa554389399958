// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/IssueEndpoints.h"

#include "sandbox/endpoints/Packages.h"
#include "sandbox/http/HttpMessage.h"
#include "sandbox/http/Request.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

QJsonObject objectOf(const Issue &issue)
{
    return {
        {u"issueId"_s, issue.number},
        {u"referenceId"_s, issue.reference},
        {u"packageId"_s, issue.package},
        {u"reporterId"_s, QString::number(issue.reporter)},
        {u"title"_s, issue.title},
        {u"description"_s, issue.description ? QJsonValue(*issue.description) : QJsonValue()},
        {u"open"_s, int{issue.isOpen}},
        {u"openDate"_s, issue.opened},
    };
}

// The reply for an unknown package; nil for a known one.
std::optional<Reply> refusal(const QString &package)
{
    if (packages().contains(package)) {
        return {};
    }
    return resultReply("Unknown Package"_L1, package.isEmpty() ? 400 : 200);
}

} // namespace

QList<Endpoint> IssueEndpoints::endpoints()
{
    return {
        {"/issues.php", "GET", "Improper request"_L1,
         [this](const Request &request) { return list(request); }},
        {"/submitissue.php", "POST", "Improper request"_L1,
         [this](const Request &request) { return submission(request); }},
    };
}

Reply IssueEndpoints::list(const Request &request)
{
    const QString package = request.text(u"packageId");
    if (const auto reply = refusal(package)) {
        return *reply;
    }
    QList<Issue> issues;
    if (m_store.list(package, &issues) != Outcome::Done) {
        return resultReply("Internal Error"_L1, 500);
    }
    QJsonArray objects;
    for (const Issue &issue : std::as_const(issues)) {
        objects.append(objectOf(issue));
    }
    return jsonListReply(objects);
}

Reply IssueEndpoints::submission(const Request &request)
{
    const QString package = request.text(u"packageId");
    if (const auto reply = refusal(package)) {
        return *reply;
    }
    bool isNumber = false;
    const qint64 reporter = request.text(u"reporterId").toLongLong(&isNumber);
    const QString title = request.text(u"title");
    if (title.isEmpty() || !isNumber || reporter < 0) {
        return resultReply("Improper request"_L1, 400);
    }
    QList<Issue> issues{{.package = package,
                         .reporter = reporter,
                         .title = title,
                         .description = request.parameter(u"description")}};
    return m_store.add(&issues) == Outcome::Done
        ? jsonReply({{u"issueId"_s, issues.first().number}})
        : resultReply("Internal Error"_L1, 500);
}

} // namespace sandbox
