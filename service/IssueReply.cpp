// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/IssueReply.h"

#include "service/JSONListReader.h"

#include <QJsonObject>

#include <algorithm>

namespace {

enum Code : NSUInteger {
    NoIssues = 0,
    HasIssues = 1,
    Failed = 2, // an object, no JSON, or too many issues
};

constexpr qsizetype maximumIssues = 100'000;

/// Appends the objects among `elements`, the last first. False for more than `maximumIssues`.
bool appendReversed(QList<WZTPackageIssue> &issues, const QJsonArray &elements)
{
    for (qsizetype i = elements.size(); i-- > 0;) {
        const QJsonValue element = elements[i];
        if (!element.isObject()) {
            continue;
        }
        if (issues.size() == maximumIssues) {
            return false;
        }
        issues.append(WZTPackageIssue::initWithIssueParams(element.toObject()));
    }
    return true;
}

} // namespace

IssueReply IssueReply::fromBody(QByteArray body)
{
    JSONListReader reader(std::move(body));
    QList<WZTPackageIssue> issues;
    bool isEmpty = true;
    while (reader.hasMore()) {
        const std::optional<QJsonArray> elements = reader.takeLast();
        if (!elements || !appendReversed(issues, *elements)) {
            return {Failed, std::nullopt};
        }
        isEmpty = elements->isEmpty();
    }
    if (isEmpty) {
        return {NoIssues, std::nullopt};
    }
    std::reverse(issues.begin(), issues.end());
    return {HasIssues, issues};
}
