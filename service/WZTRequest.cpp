// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/WZTRequest.h"

#include "model/BuildConstants.h"
#include "platform/foundation/NSURLComponents.h"
#include "platform/foundation/NSURLSession.h"

using namespace Qt::StringLiterals;

namespace {

QList<NSURLQueryItem> queryItems(std::span<const WZTParameter> parameters,
                                 std::span<const std::optional<QString>> values)
{
    Q_ASSERT(parameters.size() == values.size());
    QList<NSURLQueryItem> items;
    for (size_t i = 0; i < parameters.size(); ++i) {
        const bool empty = !values[i] || values[i]->isEmpty();
        if (parameters[i].sent == WZTParameter::Sent::Always || !empty)
            items.append(NSURLQueryItem::queryItemWithName(parameters[i].name, values[i]));
    }
    return items;
}

NSMutableURLRequest urlRequest(const WZTRequest &request,
                               std::span<const std::optional<QString>> values)
{
    NSURLComponents components;
    components.setScheme(u"https"_s);
    components.setHost(QLatin1StringView(BuildConstants::serviceHost));
    components.setPath(request.path);
    components.setQueryItems(queryItems(request.parameters, values));

    // A text that is no valid Unicode makes no URL; the session refuses the empty one.
    auto result = NSMutableURLRequest::requestWithURL(components.URL().value_or(QByteArray()));
    result.setHTTPMethod(request.method == WZTRequest::Method::Get ? "GET" : "POST");
    result.setRepeatable(request.repetition == WZTRequest::Repetition::Harmless);
    return result;
}

} // namespace

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
