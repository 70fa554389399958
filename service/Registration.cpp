// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/AccountRequest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr AccountReplyCodes::Result registrationResults[] = {
    {"User Exists"_L1, 0},
    {"Improper request"_L1, 1},
};
constexpr AccountReplyCodes registrationCodes{
    .transportError = 4,
    .user = 2,
    .results = registrationResults,
    .anythingElse = 3,
};

} // namespace

void WZTAPI::registerEmail(const Text &email, const Text &userName, Text passwordDigest,
                           UserCompletion completion)
{
    const WZTRequest request{"GET",
                             u"/register.php"_s,
                             {{u"userEmail"_s, email},
                              {u"userPassword"_s, std::move(passwordDigest)},
                              {u"userName"_s, userName}}};
    sendAccountRequest(request, registrationCodes, std::move(completion));
}
