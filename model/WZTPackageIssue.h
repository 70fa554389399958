// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QString>

#include <optional>

class NSCoder;
class QJsonObject;

/// An issue that somebody reported against a project, as the web service lists it: a plain value.
class WZTPackageIssue {
public:
    using Text = std::optional<QString>;

    /// The class name under which archives keep an issue.
    static constexpr QLatin1StringView className{"WZTPackageIssue"};

    /// Sets every field, without any check; a `status` of true is an open issue.
    WZTPackageIssue(Text issueId, Text referenceId, Text packageId, Text reporterId, Text title,
                    Text description, bool status, std::optional<NSDate> openDate);

    /// The issue in an element of a reply, whatever that holds: a text that is missing, or neither
    /// text nor number, is nil, as is a date that cannot be read. Any thread.
    [[nodiscard]] static WZTPackageIssue initWithIssueParams(const QJsonObject &params);

    /// The issue in an archive, whatever that holds: absent values are nil or false.
    [[nodiscard]] static WZTPackageIssue initWithCoder(const NSCoder &coder);
    void encodeWithCoder(NSCoder &coder) const;

    bool operator==(const WZTPackageIssue &) const = default;

    std::optional<NSDate> openDate;
    Text issueId;
    /// Names the project, as WZTPackage's bundleIdentifier does.
    Text packageId;
    Text referenceId;
    /// The number of the account that reported it.
    Text reporterId;
    /// One line.
    Text title;
    Text issueDescription;
    /// False once it is closed.
    bool open = false;

private:
    WZTPackageIssue() = default;
};
