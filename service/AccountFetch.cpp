// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/AccountRequest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr AccountReplyCodes::Result fetchResults[] = {
    {"No User"_L1, 1},
    {"Invalid Request"_L1, 2},
};
constexpr AccountReplyCodes fetchCodes{
    .transportError = 2,
    .user = 0,
    .results = fetchResults,
    .anythingElse = 2,
};

} // namespace

void WZTAPI::userForAccount(const Text &email, UserCompletion completion)
{
    const WZTRequest request{"GET", u"/user.php"_s, {{u"userEmail"_s, email}}};
    sendAccountRequest(request, fetchCodes, std::move(completion));
}
