// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackageIssue.h"
#include "platform/foundation/base/NSUInteger.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// What WZTAPI::issuesForPackageIdentifier completes with.
struct IssueReply {
    /// 1: the issues. 0: the list is empty. 2: a transport error, no list, or too many issues.
    NSUInteger code = 2;
    std::optional<QList<WZTPackageIssue>> issues;

    /// Reads the body of a reply. The memory of a body that nobody else holds is given back while
    /// it is read. Any thread.
    [[nodiscard]] static IssueReply fromBody(QByteArray body);
};
