// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTUser.h"

#include "model/ServiceDate.h"
#include "platform/foundation/base/NumberReading.h"
#include "platform/foundation/coding/NSCoder.h"

#include <QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A field's key in the service's parameters and its key in an archive; they differ on purpose.
struct Keys {
    QLatin1StringView parameter;
    QLatin1StringView archive;
};

constexpr Keys tavloIdKeys{"userTavloID"_L1, "tavloId"_L1};
constexpr Keys emailKeys{"userEmail"_L1, "email"_L1};
constexpr Keys userNameKeys{"userName"_L1, "username"_L1};
constexpr Keys earlyAdopterKeys{"userEarlyAdopterStatus"_L1, "earlyAdopter"_L1};
constexpr Keys joinDateKeys{"userJoined"_L1, "joinDate"_L1};

/// An optional text. Its archive entry exists only if the text is set.
struct OptionalText {
    std::optional<QString> WZTUser::*field;
    Keys keys;
};

constexpr OptionalText optionalTexts[] = {
    {&WZTUser::discordUsername, {"userDiscord"_L1, "discord"_L1}},
    {&WZTUser::redditUsername, {"userReddit"_L1, "reddit"_L1}},
    {&WZTUser::twitterUsername, {"userTwitter"_L1, "twitter"_L1}},
    {&WZTUser::cydiaId, {"userCydiaID"_L1, "cydiaId"_L1}},
};

bool isMissing(const std::optional<QString> &text)
{
    return !text || text->isEmpty();
}

} // namespace

WZTUser::WZTUser(int number, std::optional<QString> address, std::optional<QString> name)
    : tavloId(number), email(std::move(address)), userName(std::move(name))
{
}

std::optional<WZTUser> WZTUser::initWithUserParams(const QJsonObject &params)
{
    const int tavloId = intValue(params[tavloIdKeys.parameter]);
    const auto email = textValue(params[emailKeys.parameter]);
    const auto userName = textValue(params[userNameKeys.parameter]);
    if (tavloId <= 0 || isMissing(email) || isMissing(userName)) {
        return std::nullopt;
    }

    WZTUser user(tavloId, email, userName);
    for (const OptionalText &text : optionalTexts) {
        user.*text.field = textValue(params[text.keys.parameter]);
    }
    user.earlyAdopter = boolValue(params[earlyAdopterKeys.parameter]);
    user.joinDate = serviceDate(params[joinDateKeys.parameter]);
    return user;
}

WZTUser WZTUser::initWithCoder(const NSCoder &coder)
{
    WZTUser user(coder.decodeIntForKey(tavloIdKeys.archive),
                 coder.decodeStringForKey(emailKeys.archive),
                 coder.decodeStringForKey(userNameKeys.archive));
    for (const OptionalText &text : optionalTexts) {
        user.*text.field = coder.decodeStringForKey(text.keys.archive);
    }
    user.joinDate = coder.decodeDateForKey(joinDateKeys.archive);
    user.earlyAdopter = coder.decodeBoolForKey(earlyAdopterKeys.archive);
    return user;
}

void WZTUser::encodeWithCoder(NSCoder &coder) const
{
    coder.encodeObject(tavloId, tavloIdKeys.archive);
    coder.encodeObject(email, emailKeys.archive);
    coder.encodeObject(userName, userNameKeys.archive);
    coder.encodeObject(joinDate, joinDateKeys.archive);
    coder.encodeBool(earlyAdopter, earlyAdopterKeys.archive);
    for (const OptionalText &text : optionalTexts) {
        if (this->*text.field) {
            coder.encodeObject(this->*text.field, text.keys.archive);
        }
    }
}
