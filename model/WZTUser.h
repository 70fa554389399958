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

    /// Sets the three fields that every account has, without any check.
    WZTUser(int tavloId, std::optional<QString> email, std::optional<QString> userName);

    /// The account in the user parameters of a reply. Nil unless the number is positive and the
    /// e-mail and the name are not empty; nothing else is checked.
    [[nodiscard]] static std::optional<WZTUser> initWithUserParams(const QJsonObject &params);

    /// The account in an archive, whatever that holds: absent values are 0, nil or false.
    [[nodiscard]] static WZTUser initWithCoder(const NSCoder &coder);
    void encodeWithCoder(NSCoder &coder) const;

    bool operator==(const WZTUser &) const = default;

    bool earlyAdopter = false;
    /// The account's number on the service, 1 or more when the service sent it.
    int tavloId = 0;
    std::optional<QString> cydiaId;
    std::optional<NSDate> joinDate;
    std::optional<QString> discordUsername;
    /// Names the account in every request; absent only in an archive that lacks it.
    std::optional<QString> email;
    std::optional<QString> redditUsername;
    std::optional<QString> twitterUsername;
    /// The name to show; absent only in an archive that lacks it.
    std::optional<QString> userName;
};
