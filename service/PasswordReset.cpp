// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/AccountRequest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr AccountReplyCodes::Result resetResults[] = {
    {"Message has been sent"_L1, 0},
    {"Message could not be sent"_L1, 3},
    {"User Not Found"_L1, 3},
};
constexpr AccountReplyCodes resetCodes{
    .transportError = 2,
    .user = std::nullopt,
    .results = resetResults,
    .anythingElse = 2,
};

} // namespace

void WZTAPI::resetAccountPassword(const Text &email, CodeCompletion completion)
{
    const WZTRequest request{"POST", u"/passwordreset.php"_s, {{u"userEmail"_s, email}}};
    sendAccountRequest(
        request, resetCodes,
        [completion = std::move(completion)](NSUInteger code, const auto &) { completion(code); });
}
