// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/endpoints/AccountReply.h"

#include "sandbox/http/HttpMessage.h"

using namespace Qt::StringLiterals;

namespace sandbox {

Reply userReply(const Account &account)
{
    QJsonObject object{
        {u"userTavloID"_s, account.number},
        {u"userEmail"_s, account.email},
        {u"userName"_s, account.name},
        {u"userEarlyAdopterStatus"_s, int{account.earlyAdopter}},
        {u"userJoined"_s, account.joined},
    };
    const std::pair<QString, std::optional<QString>> optionals[] = {
        {u"userReddit"_s, account.reddit},
        {u"userTwitter"_s, account.twitter},
        {u"userDiscord"_s, account.discord},
        {u"userCydiaID"_s, account.cydia},
    };
    for (const auto &[key, text] : optionals) {
        if (text) {
            object.insert(key, *text);
        }
    }
    return jsonReply(object);
}

} // namespace sandbox
