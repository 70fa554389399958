// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTIssueOperations.h"

#include "model/WZTSession.h"
#include "platform/foundation/base/NSLog.h"
#include "service/WZTAPI.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace {

using namespace Qt::StringLiterals;
using WZTIssueOperations::list;
using WZTIssueOperations::submission;

/// What is no object makes no issue. Nil for too many.
std::optional<QList<WZTPackageIssue>> issuesIn(const QJsonArray &elements)
{
    QList<WZTPackageIssue> issues;
    for (const QJsonValue element : elements) {
        if (!element.isObject()) {
            continue;
        }
        if (issues.size() == list.most) {
            return std::nullopt;
        }
        issues.append(WZTPackageIssue::initWithIssueParams(element.toObject()));
    }
    return issues;
}

void decodeList(const WZTRequestFrame::Reply &reply, const WZTAPI::IssuesCompletion &completion)
{
    if (!reply || !reply->isArray()) {
        completion(list.failure, std::nullopt);
        return;
    }
    const QJsonArray elements = reply->array();
    if (elements.isEmpty()) {
        completion(list.emptyList, std::nullopt);
        return;
    }
    const auto issues = issuesIn(elements);
    completion(issues ? list.issues : list.failure, issues);
}

NSUInteger codeForSubmission(const WZTRequestFrame::Reply &reply)
{
    const bool isRefused = !reply || reply->isArray() || reply->object().contains("result"_L1);
    return isRefused ? submission.refused : submission.accepted;
}

/// 0 while nobody is signed in.
QString reporterId()
{
    const WZTSession *session = WZTSession::shared();
    const bool isSignedIn = session && session->currentUser();
    return QString::number(isSignedIn ? session->currentUser()->tavloId : 0);
}

QString description(const QList<NSURLQueryItem> &items)
{
    QStringList texts;
    for (const NSURLQueryItem &item : items) {
        texts.append(item.name + u" = "_s + item.value.value_or(u"(null)"_s));
    }
    return u'(' + texts.join(u", "_s) + u')';
}

} // namespace

void WZTAPI::issuesForPackageIdentifier(const Text &identifier, IssuesCompletion completion)
{
    WZTRequestFrame::send(
        list.request, {&identifier, 1},
        [completion = std::move(completion)](const WZTRequestFrame::Reply &reply) {
            decodeList(reply, completion);
        });
}

void WZTAPI::submitIssueForPackage(const Text &identifier, const Text &title,
                                   const Text &issueDescription, CodeCompletion completion)
{
    const Text values[] = {identifier, title, reporterId(), issueDescription};
    NSLog(u"Query Items: "_s
          + description(WZTRequestFrame::queryItems(submission.request, values)));
    WZTRequestFrame::send(
        submission.request, values,
        [completion = std::move(completion)](const WZTRequestFrame::Reply &reply) {
            completion(codeForSubmission(reply));
        });
}
