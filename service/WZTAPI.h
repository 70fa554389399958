// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "model/WZTPackageIssue.h"
#include "model/WZTUser.h"
#include "platform/foundation/base/NSUInteger.h"

#include <QList>

#include <functional>

/// The client of the web service. Every operation starts one request on the shared URL session and
/// returns at once. Its completion must not be empty; it runs exactly once, on the session's
/// thread (on the caller's, before the return, without a session). Each operation has codes of its
/// own: no code means success in all of them.
///
/// Passwords are digests (see SHA256). A digest of which the caller keeps no copy is overwritten
/// when the request has been sent. An absent text is sent as a name without a value, an empty one
/// as an empty value.
class WZTAPI {
public:
    using Text = std::optional<QString>;
    /// The user is nil for every code except the one that reports a user.
    using UserCompletion = std::function<void(NSUInteger code, const std::optional<WZTUser> &user)>;
    /// The issues are nil for every code except the one that reports issues.
    using IssuesCompletion =
        std::function<void(NSUInteger code, const std::optional<QList<WZTPackageIssue>> &issues)>;
    using CodeCompletion = std::function<void(NSUInteger code)>;

    WZTAPI() = delete;

    /// Signs in. 1: the user. 2: no such address. 0: wrong password. 3: anything else.
    static void loginToAccount(const Text &email, Text passwordDigest, UserCompletion completion);

    /// Makes an account. 2: its user. 0: the address is taken. 1: refused as improper.
    /// 4: the service was not reached. 3: anything else.
    static void registerEmail(const Text &email, const Text &userName, Text passwordDigest,
                              UserCompletion completion);

    /// Asks for a message with a new password. 0: sent. 3: not sent, or no such address.
    /// 2: anything else.
    static void resetAccountPassword(const Text &email, CodeCompletion completion);

    /// Changes the name, the password or both; an absent or empty one stays as it is. 1: the
    /// changed user. 2: no such address. 0: wrong current password. 3: anything else.
    static void updateAccount(const Text &email, const Text &userName, Text passwordDigest,
                              Text newPasswordDigest, UserCompletion completion);

    /// Fetches the account again. 0: its user. 1: no such address. 2: anything else.
    static void userForAccount(const Text &email, UserCompletion completion);

    /// Lists a project's issues in the service's order. 1: the issues. 0: the project has none.
    /// 2: anything else, including more than 100,000 issues.
    static void issuesForPackageIdentifier(const Text &identifier, IssuesCompletion completion);

    /// Files an issue against a project in the signed-in user's name and logs the parameters. An
    /// absent description is not sent. Main thread. 0: accepted. 1: refused, or the service was not
    /// reached.
    static void submitIssueForPackage(const Text &identifier, const Text &title,
                                      const Text &issueDescription, CodeCompletion completion);
};
