// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTAccountReplies.h"

using namespace Qt::StringLiterals;

namespace {

constexpr WZTAccountReplies::Result results[] = {
    {"No User"_L1, 1},
    {"Invalid Request"_L1, 2},
};
constexpr WZTAccountReplies codes{
    .transportError = 2,
    .user = 0,
    .results = results,
    .anythingElse = 2,
};

} // namespace

void WZTAPI::userForAccount(const Text &email, UserCompletion completion)
{
    const WZTRequest request{"GET", u"/user.php"_s, {{u"userEmail"_s, email}}};
    sendAccountRequest(request, codes, std::move(completion));
}
