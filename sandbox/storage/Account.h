// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace sandbox {

/// An account as stored and sent, without its password.
struct Account {
    /// "userTavloID": 1 or more; 0 for a new account.
    qint64 number = 0;
    /// "userEmail" in its original case; unique and compared without regard to case.
    QString email = {};
    /// "userName"
    QString name = {};
    /// "userReddit", "userTwitter", "userDiscord", "userCydiaID": nil ones are not sent.
    std::optional<QString> reddit = {};
    std::optional<QString> twitter = {};
    std::optional<QString> discord = {};
    std::optional<QString> cydia = {};
    /// "userEarlyAdopterStatus", sent as the number 1 or 0.
    bool earlyAdopter = false;
    /// "userJoined", local time as "yyyy-MM-dd HH:mm:ss"; empty for a new account: now. Not
    /// checked, so that tests can send a malformed one.
    QString joined = {};

    bool operator==(const Account &) const = default;
};

} // namespace sandbox
