// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/AccountRequest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr AccountReplyCodes::Result loginResults[] = {
    {"User Does Not Exist"_L1, 2},
    {"Incorrect"_L1, 0},
};
constexpr AccountReplyCodes loginCodes{
    .transportError = 3,
    .user = 1,
    .results = loginResults,
    .anythingElse = 3,
};

} // namespace

void WZTAPI::loginToAccount(const Text &email, Text passwordDigest, UserCompletion completion)
{
    const WZTRequest request{
        "GET",
        u"/login.php"_s,
        {{u"userEmail"_s, email}, {u"userPassword"_s, std::move(passwordDigest)}}};
    sendAccountRequest(request, loginCodes, std::move(completion));
}
