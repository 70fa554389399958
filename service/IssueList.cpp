// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTAPI.h"
#include "service/WZTRequest.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

enum ListCode : NSUInteger {
    NoIssues = 0,
    HasIssues = 1,
    Failed = 2, // a transport error, an object, no JSON, or too many issues
};

constexpr qsizetype maximumIssues = 100'000;

/// The objects among `elements` as issues. Nil for more than `maximumIssues` of them.
std::optional<QList<WZTPackageIssue>> issuesFrom(const QJsonArray &elements)
{
    QList<WZTPackageIssue> issues;
    for (const QJsonValue element : elements) {
        if (!element.isObject()) {
            continue;
        }
        if (issues.size() == maximumIssues) {
            return std::nullopt;
        }
        issues.append(WZTPackageIssue::initWithIssueParams(element.toObject()));
    }
    return issues;
}

void decodeList(const WZTRequest::Reply &reply, const WZTAPI::IssuesCompletion &completion)
{
    if (!reply || !reply->isArray()) {
        completion(Failed, std::nullopt);
        return;
    }
    const QJsonArray elements = reply->array();
    if (elements.isEmpty()) {
        completion(NoIssues, std::nullopt);
        return;
    }
    const auto issues = issuesFrom(elements);
    completion(issues ? HasIssues : Failed, issues);
}

} // namespace

void WZTAPI::issuesForPackageIdentifier(const Text &identifier, IssuesCompletion completion)
{
    const WZTRequest request{"GET", u"/issues.php"_s, {{u"packageId"_s, identifier}}};
    request.send([completion = std::move(completion)](const WZTRequest::Reply &reply) {
        decodeList(reply, completion);
    });
}
