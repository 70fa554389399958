// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTPackageIssue.h"

#include "model/ServiceDate.h"
#include "platform/foundation/base/NumberReading.h"
#include "platform/foundation/coding/NSCoder.h"

#include <QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A text and its archive key. One of the keys differs from the service's on purpose.
struct TextField {
    WZTPackageIssue::Text WZTPackageIssue::*field;
    QLatin1StringView archive;
};

constexpr TextField texts[] = {
    {&WZTPackageIssue::issueId, "issueId"_L1},
    {&WZTPackageIssue::referenceId, "referenceId"_L1},
    {&WZTPackageIssue::packageId, "packageId"_L1},
    {&WZTPackageIssue::reporterId, "reporterId"_L1},
    {&WZTPackageIssue::title, "title"_L1},
    {&WZTPackageIssue::issueDescription, "issueDescription"_L1},
};
constexpr auto openKey = "open"_L1;
constexpr auto openDateKey = "openDate"_L1;

} // namespace

WZTPackageIssue::WZTPackageIssue(Text issue, Text reference, Text package, Text reporter,
                                 Text titleText, Text description, bool status,
                                 std::optional<NSDate> date)
    : openDate(date),
      issueId(std::move(issue)),
      packageId(std::move(package)),
      referenceId(std::move(reference)),
      reporterId(std::move(reporter)),
      title(std::move(titleText)),
      issueDescription(std::move(description)),
      open(status)
{
}

WZTPackageIssue WZTPackageIssue::initWithIssueParams(const QJsonObject &params)
{
    const auto text = [&params](QLatin1StringView key) { return textValue(params[key]); };
    return {text("issueId"_L1),         text("referenceId"_L1),
            text("packageId"_L1),       text("reporterId"_L1),
            text("title"_L1),           text("description"_L1),
            boolValue(params[openKey]), serviceDate(params[openDateKey])};
}

WZTPackageIssue WZTPackageIssue::initWithCoder(const NSCoder &coder)
{
    WZTPackageIssue issue;
    for (const TextField &text : texts) {
        issue.*text.field = coder.decodeStringForKey(text.archive);
    }
    issue.open = coder.decodeBoolForKey(openKey);
    issue.openDate = coder.decodeDateForKey(openDateKey);
    return issue;
}

void WZTPackageIssue::encodeWithCoder(NSCoder &coder) const
{
    for (const TextField &text : texts) {
        coder.encodeObject(this->*text.field, text.archive);
    }
    coder.encodeObject(openDate, openDateKey);
    coder.encodeBool(open, openKey);
}
