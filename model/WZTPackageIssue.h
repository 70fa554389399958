// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QString>

#include <optional>

class NSCoder;
class QJsonObject;

/// An issue of a project, as the web service lists it: a plain value.
class WZTPackageIssue {
public:
    using Text = std::optional<QString>;

    /// The class name under which archives keep an issue.
    static constexpr QLatin1StringView className{"WZTPackageIssue"};

    /// Sets every field, without any check; a `status` of true is an open issue.
    WZTPackageIssue(Text issueId, Text referenceId, Text packageId, Text reporterId, Text title,
                    Text description, bool status, std::optional<NSDate> openDate);

    /// Reads an issue from an element of a reply and never fails. A text is nil if the value is
    /// missing or is neither a text nor a number, and a date is nil if it cannot be parsed. Any
    /// thread.
    [[nodiscard]] static WZTPackageIssue initWithIssueParams(const QJsonObject &params);

    /// Reads an issue from an archive and never fails: absent values are nil or false.
    [[nodiscard]] static WZTPackageIssue initWithCoder(const NSCoder &coder);
    void encodeWithCoder(NSCoder &coder) const;

    bool operator==(const WZTPackageIssue &) const = default;

    std::optional<NSDate> openDate;
    Text issueId;
    /// The project's WZTPackage::bundleIdentifier.
    Text packageId;
    Text referenceId;
    /// The reporting account's number.
    Text reporterId;
    /// One line.
    Text title;
    Text issueDescription;
    /// False once the issue is closed.
    bool open = false;

private:
    WZTPackageIssue() = default;
};
