// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/AccountRequest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr AccountReplyCodes::Result updateResults[] = {
    {"User Not Found"_L1, 2},
    {"Incorrect"_L1, 0},
};
constexpr AccountReplyCodes updateCodes{
    .transportError = 3,
    .user = 1,
    .results = updateResults,
    .anythingElse = 3,
};

void addUnlessEmpty(QList<NSURLQueryItem> &parameters, const NSURLQueryItem &item)
{
    if (item.value && !item.value->isEmpty()) {
        parameters.append(item);
    }
}

} // namespace

void WZTAPI::updateAccount(const Text &email, const Text &userName, Text passwordDigest,
                           Text newPasswordDigest, UserCompletion completion)
{
    WZTRequest request{
        "POST",
        u"/update.php"_s,
        {{u"userEmail"_s, email}, {u"userOldPassword"_s, std::move(passwordDigest)}}};
    addUnlessEmpty(request.parameters, {u"userName"_s, userName});
    addUnlessEmpty(request.parameters, {u"userNewPassword"_s, std::move(newPasswordDigest)});
    sendAccountRequest(request, updateCodes, std::move(completion));
}
