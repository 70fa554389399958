// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/NSUInteger.h"
#include "service/WZTRequest.h"

/// The list of a project's issues: its request, and the codes that its outcomes are reported as.
struct WZTIssueListOperation {
    WZTRequest request;
    /// For a transport error, whatever is no list, and a list of more issues than `most`.
    NSUInteger failure = 0;
    NSUInteger emptyList = 0;
    NSUInteger issues = 0;
    qsizetype most = 0;
};

/// The submission of an issue. What is said under "result" does not count, only that it is said.
struct WZTIssueSubmissionOperation {
    WZTRequest request;
    /// For an object without "result", and for what is no JSON.
    NSUInteger accepted = 0;
    /// For a transport error, an object with "result", and a list.
    NSUInteger refused = 0;
};

namespace WZTIssueOperations {

using namespace Qt::StringLiterals;

using Method = WZTRequest::Method;
using Sent = WZTParameter::Sent;

inline constexpr WZTParameter listParameters[] = {
    {"packageId"_L1},
};
inline constexpr WZTIssueListOperation list{
    .request = {"/issues.php"_L1, Method::Get, listParameters},
    .failure = 2,
    .emptyList = 0,
    .issues = 1,
    .most = 100'000,
};

inline constexpr WZTParameter submissionParameters[] = {
    {"packageId"_L1},
    {"title"_L1},
    {"reporterId"_L1},
    {"description"_L1, Sent::UnlessNil},
};
inline constexpr WZTIssueSubmissionOperation submission{
    .request = {"/submitissue.php"_L1, Method::Post, submissionParameters},
    .accepted = 0,
    .refused = 1,
};

} // namespace WZTIssueOperations
