// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/dates/NSDate.h"

#include <QString>

#include <optional>

class NSCoder;
class QJsonObject;

/// An account as the web service describes it: a plain value.
class WZTUser {
public:
    /// The class name under which archives keep a user.
    static constexpr QLatin1StringView className{"WZTUser"};

    /// Sets the three fields of every account, without any check.
    WZTUser(int tavloId, std::optional<QString> email, std::optional<QString> userName);

    /// Reads an account from a reply's user parameters. Nil unless the number is positive and the
    /// e-mail and the name are not empty; nothing else is checked.
    [[nodiscard]] static std::optional<WZTUser> initWithUserParams(const QJsonObject &params);

    /// Reads an account from an archive and never fails: absent values are 0, nil or false.
    [[nodiscard]] static WZTUser initWithCoder(const NSCoder &coder);
    void encodeWithCoder(NSCoder &coder) const;

    bool operator==(const WZTUser &) const = default;

    bool earlyAdopter = false;
    /// The account's number on the service; 1 or more in a record from the service.
    int tavloId = 0;
    std::optional<QString> cydiaId;
    std::optional<NSDate> joinDate;
    std::optional<QString> discordUsername;
    /// The account's key in every request. Nil only after reading an archive without it.
    std::optional<QString> email;
    std::optional<QString> redditUsername;
    std::optional<QString> twitterUsername;
    /// The display name. Nil only after reading an archive without it.
    std::optional<QString> userName;
};
