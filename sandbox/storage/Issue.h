// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace sandbox {

/// An issue as stored and sent. Its fields are not checked, so that tests can send malformed ones.
struct Issue {
    /// "issueId": 1 or more; 0 for a new issue.
    qint64 number = 0;
    /// "referenceId"; empty for a new issue: a random one.
    QString reference = {};
    /// "packageId"
    QString package = {};
    /// "reporterId": the number of an account, or 0 for none; sent as a text.
    qint64 reporter = 0;
    QString title = {};
    /// Sent as null if nil.
    std::optional<QString> description = {};
    /// "open", sent as the number 1 or 0.
    bool isOpen = true;
    /// "openDate", local time as "yyyy-MM-dd HH:mm:ss"; empty for a new issue: now.
    QString opened = {};

    bool operator==(const Issue &) const = default;
};

} // namespace sandbox
