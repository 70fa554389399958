// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/NSUInteger.h"
#include "service/WZTRequest.h"

/// The code that stands for a text under "result".
struct WZTResultCode {
    QLatin1StringView result;
    NSUInteger code = 0;
};

/// An account operation: its request, and the codes that its outcomes are reported as. The first
/// row that applies counts, top to bottom.
struct WZTAccountOperation {
    WZTRequest request;
    NSUInteger transportError = 0;
    /// For a reply that makes a user; nil where none is looked for.
    std::optional<NSUInteger> user;
    std::span<const WZTResultCode> results;
    NSUInteger anythingElse = 0;
};

namespace WZTAccountOperations {

using namespace Qt::StringLiterals;

using Method = WZTRequest::Method;
using Sent = WZTParameter::Sent;

inline constexpr WZTParameter loginParameters[] = {
    {"userEmail"_L1},
    {"userPassword"_L1},
};
inline constexpr WZTResultCode loginResults[] = {
    {"User Does Not Exist"_L1, 2},
    {"Incorrect"_L1, 0},
};
inline constexpr WZTAccountOperation login{
    .request = {"/login.php"_L1, Method::Get, loginParameters},
    .transportError = 3,
    .user = 1,
    .results = loginResults,
    .anythingElse = 3,
};

inline constexpr WZTParameter registrationParameters[] = {
    {"userEmail"_L1},
    {"userPassword"_L1},
    {"userName"_L1},
};
inline constexpr WZTResultCode registrationResults[] = {
    {"User Exists"_L1, 0},
    {"Improper request"_L1, 1},
};
inline constexpr WZTAccountOperation registration{
    .request = {"/register.php"_L1, Method::Get, registrationParameters},
    .transportError = 4,
    .user = 2,
    .results = registrationResults,
    .anythingElse = 3,
};

inline constexpr WZTParameter passwordResetParameters[] = {
    {"userEmail"_L1},
};
inline constexpr WZTResultCode passwordResetResults[] = {
    {"Message has been sent"_L1, 0},
    {"Message could not be sent"_L1, 3},
    {"User Not Found"_L1, 3},
};
inline constexpr WZTAccountOperation passwordReset{
    .request = {"/passwordreset.php"_L1, Method::Post, passwordResetParameters},
    .transportError = 2,
    .user = std::nullopt,
    .results = passwordResetResults,
    .anythingElse = 2,
};

inline constexpr WZTParameter updateParameters[] = {
    {"userEmail"_L1},
    {"userOldPassword"_L1},
    {"userName"_L1, Sent::UnlessEmpty},
    {"userNewPassword"_L1, Sent::UnlessEmpty},
};
inline constexpr WZTResultCode updateResults[] = {
    {"User Not Found"_L1, 2},
    {"Incorrect"_L1, 0},
};
inline constexpr WZTAccountOperation update{
    .request = {"/update.php"_L1, Method::Post, updateParameters},
    .transportError = 3,
    .user = 1,
    .results = updateResults,
    .anythingElse = 3,
};

inline constexpr WZTParameter fetchParameters[] = {
    {"userEmail"_L1},
};
inline constexpr WZTResultCode fetchResults[] = {
    {"No User"_L1, 1},
    {"Invalid Request"_L1, 2},
};
inline constexpr WZTAccountOperation fetch{
    .request = {"/user.php"_L1, Method::Get, fetchParameters},
    .transportError = 2,
    .user = 0,
    .results = fetchResults,
    .anythingElse = 2,
};

} // namespace WZTAccountOperations
