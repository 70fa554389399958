// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTRequest.h"

#include "model/BuildConstants.h"
#include "platform/foundation/url/NSURLComponents.h"
#include "platform/foundation/url/NSURLSession.h"

using namespace Qt::StringLiterals;

namespace {

bool isSent(WZTParameter::Sent sent, const std::optional<QString> &value)
{
    switch (sent) {
    case WZTParameter::Sent::Always:
        return true;
    case WZTParameter::Sent::UnlessNil:
        return value.has_value();
    case WZTParameter::Sent::UnlessEmpty:
        return value && !value->isEmpty();
    }
    return true;
}

NSMutableURLRequest urlRequest(const WZTRequest &request,
                               std::span<const std::optional<QString>> values)
{
    NSURLComponents components;
    components.setScheme(u"https"_s);
    components.setHost(QLatin1StringView(BuildConstants::serviceHost));
    components.setPath(request.path);
    components.setQueryItems(WZTRequestFrame::queryItems(request, values));

    // A text that is no valid Unicode makes no URL; the session refuses the empty one.
    auto result = NSMutableURLRequest::requestWithURL(components.URL().value_or(QByteArray()));
    result.setHTTPMethod(request.method == WZTRequest::Method::Get ? "GET" : "POST");
    return result;
}

} // namespace

QList<NSURLQueryItem> WZTRequestFrame::queryItems(const WZTRequest &request,
                                                  std::span<const std::optional<QString>> values)
{
    Q_ASSERT(request.parameters.size() == values.size());
    QList<NSURLQueryItem> items;
    for (size_t i = 0; i < values.size(); ++i) {
        const WZTParameter &parameter = request.parameters[i];
        if (isSent(parameter.sent, values[i])) {
            items.append(NSURLQueryItem::queryItemWithName(parameter.name, values[i]));
        }
    }
    return items;
}

void WZTRequestFrame::send(const WZTRequest &request,
                           std::span<const std::optional<QString>> values,
                           std::function<void(const Reply &)> decode)
{
    NSURLSession *session = NSURLSession::sharedSession();
    if (!session) {
        decode(std::nullopt);
        return;
    }
    session
        ->dataTaskWithRequest(urlRequest(request, values),
                              [decode = std::move(decode)](const QByteArray &data,
                                                           const std::optional<NSError> &error) {
                                  decode(error ? Reply() : QJsonDocument::fromJson(data));
                              })
        ->resume();
}
