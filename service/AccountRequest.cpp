// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/AccountRequest.h"

#include <QJsonObject>

#include <algorithm>

namespace {

NSUInteger codeForResult(const QJsonValue &result, const AccountReplyCodes &codes)
{
    if (!result.isString()) {
        return codes.anythingElse;
    }
    const QString text = result.toString();
    const auto row = std::ranges::find_if(
        codes.results, [&](const AccountReplyCodes::Result &known) { return known.text == text; });
    return row == codes.results.end() ? codes.anythingElse : row->code;
}

void decodeReply(const WZTRequest::Reply &reply, const AccountReplyCodes &codes,
                 const WZTAPI::UserCompletion &completion)
{
    if (!reply) {
        completion(codes.transportError, std::nullopt);
        return;
    }
    // A list, and a body that is not JSON, read as an object without any entry.
    const QJsonObject object = reply->object();
    const auto user = codes.user ? WZTUser::initWithUserParams(object) : std::nullopt;
    completion(user ? *codes.user : codeForResult(object[QLatin1StringView("result")], codes),
               user);
}

} // namespace

void sendAccountRequest(const WZTRequest &request, const AccountReplyCodes &codes,
                        WZTAPI::UserCompletion completion)
{
    request.send([&codes, completion = std::move(completion)](const WZTRequest::Reply &reply) {
        decodeReply(reply, codes, completion);
    });
}
