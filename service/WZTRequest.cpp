// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTRequest.h"

#include "model/BuildConstants.h"
#include "platform/foundation/base/Overwrite.h"
#include "platform/foundation/url/NSURLComponents.h"
#include "platform/foundation/url/NSURLSession.h"

using namespace Qt::StringLiterals;

namespace {

NSMutableURLRequest urlRequest(const WZTRequest &request)
{
    NSURLComponents components;
    components.setScheme(u"https"_s);
    components.setHost(QLatin1StringView(BuildConstants::serviceHost));
    components.setPath(request.path);
    components.setQueryItems(request.parameters);

    // A text with invalid Unicode makes no URL; the session refuses the empty one.
    auto result = NSMutableURLRequest::requestWithURL(components.URL().value_or(QByteArray()));
    result.setHTTPMethod(request.method);
    return result;
}

} // namespace

WZTRequest::~WZTRequest()
{
    for (NSURLQueryItem &parameter : parameters) {
        if (parameter.value) {
            overwrite(*parameter.value);
        }
    }
}

void WZTRequest::send(std::function<void(const Reply &)> completion) const
{
    sendForBody([completion = std::move(completion)](const Body &body) {
        completion(body ? QJsonDocument::fromJson(*body) : Reply());
    });
}

void WZTRequest::sendForBody(std::function<void(Body)> completion) const
{
    NSURLSession *session = NSURLSession::sharedSession();
    if (!session) {
        completion(std::nullopt);
        return;
    }
    session
        ->dataTaskWithRequest(urlRequest(*this),
                              [completion = std::move(completion)](
                                  QByteArray data, const std::optional<NSError> &error) {
                                  completion(error ? Body() : std::move(data));
                              })
        ->resume();
}
