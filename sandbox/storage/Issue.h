// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace sandbox {

/// An issue as the service stores it and sends it. No field is checked when it is added, so that
/// odd ones can be tried.
struct Issue {
    /// "issueId": 1 or more. 0 in an issue that is still to be added.
    qint64 number = 0;
    /// "referenceId". Empty in an issue to be added: one is made up.
    QString reference = {};
    /// "packageId"
    QString package = {};
    /// "reporterId": the number of an account, 0 for nobody; sent as a text.
    qint64 reporter = 0;
    QString title = {};
    /// Sent as null when absent.
    std::optional<QString> description = {};
    /// "open", sent as the number 1 or 0.
    bool isOpen = true;
    /// "openDate", local time as "yyyy-MM-dd HH:mm:ss". Empty in an issue to be added: now.
    QString opened = {};

    bool operator==(const Issue &) const = default;
};

} // namespace sandbox
