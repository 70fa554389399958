// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTAccountOperations.h"

#include "service/WZTAPI.h"

#include <QJsonObject>

#include <algorithm>
#include <initializer_list>

namespace {

using Text = WZTAPI::Text;

NSUInteger codeForResult(const QJsonValue &result, const WZTAccountOperation &operation)
{
    if (!result.isString()) {
        return operation.anythingElse;
    }
    const QString text = result.toString();
    const auto row = std::ranges::find_if(
        operation.results, [&](const WZTResultCode &known) { return known.result == text; });
    return row == operation.results.end() ? operation.anythingElse : row->code;
}

void decodeReply(const WZTRequestFrame::Reply &reply, const WZTAccountOperation &operation,
                 const WZTAPI::UserCompletion &completion)
{
    if (!reply) {
        completion(operation.transportError, std::nullopt);
        return;
    }
    // A list, or no JSON at all, reads as an object without any entry.
    const QJsonObject object = reply->object();
    const auto user = operation.user ? WZTUser::initWithUserParams(object) : std::nullopt;
    const NSUInteger code =
        user ? *operation.user : codeForResult(object[QLatin1StringView("result")], operation);
    completion(code, user);
}

/// `operation` is one of the constants and outlives every request.
void run(const WZTAccountOperation &operation, std::initializer_list<Text> values,
         WZTAPI::UserCompletion completion)
{
    WZTRequestFrame::send(
        operation.request, {values.begin(), values.size()},
        [&operation, completion = std::move(completion)](const WZTRequestFrame::Reply &reply) {
            decodeReply(reply, operation, completion);
        });
}

} // namespace

void WZTAPI::loginToAccount(const Text &email, const Text &passwordDigest,
                            UserCompletion completion)
{
    run(WZTAccountOperations::login, {email, passwordDigest}, std::move(completion));
}

void WZTAPI::registerEmail(const Text &email, const Text &userName, const Text &passwordDigest,
                           UserCompletion completion)
{
    run(WZTAccountOperations::registration, {email, passwordDigest, userName},
        std::move(completion));
}

void WZTAPI::resetAccountPassword(const Text &email, CodeCompletion completion)
{
    run(WZTAccountOperations::passwordReset, {email},
        [completion = std::move(completion)](NSUInteger code, const std::optional<WZTUser> &) {
            completion(code);
        });
}

void WZTAPI::updateAccount(const Text &email, const Text &userName, const Text &passwordDigest,
                           const Text &newPasswordDigest, UserCompletion completion)
{
    run(WZTAccountOperations::update, {email, passwordDigest, userName, newPasswordDigest},
        std::move(completion));
}

void WZTAPI::userForAccount(const Text &email, UserCompletion completion)
{
    run(WZTAccountOperations::fetch, {email}, std::move(completion));
}
