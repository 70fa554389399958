// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace sandbox {

/// An account as the service stores it and sends it, its password apart.
struct Account {
    /// "userTavloID": 1 or more. 0 in an account that is still to be added.
    qint64 number = 0;
    /// "userEmail", as it was typed; unique and looked up without regard to case.
    QString email = {};
    /// "userName"
    QString name = {};
    /// "userReddit", "userTwitter", "userDiscord", "userCydiaID": left out of replies when absent.
    std::optional<QString> reddit = {};
    std::optional<QString> twitter = {};
    std::optional<QString> discord = {};
    std::optional<QString> cydia = {};
    /// "userEarlyAdopterStatus", sent as the number 1 or 0.
    bool earlyAdopter = false;
    /// "userJoined", local time as "yyyy-MM-dd HH:mm:ss". Empty in an account to be added: now.
    /// Stored and sent as it stands, so that a malformed one can be tried.
    QString joined = {};

    bool operator==(const Account &) const = default;
};

} // namespace sandbox
