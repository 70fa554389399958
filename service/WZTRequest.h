// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLQueryItem.h"

#include <QJsonDocument>
#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <span>

/// One query item of a request.
struct WZTParameter {
    enum class Sent { Always, UnlessNil, UnlessEmpty };

    QLatin1StringView name;
    Sent sent = Sent::Always;
};

/// What an operation asks of the service. Whatever its method is, its parameters travel in the
/// URL's query, and no header fields and no body are its own.
struct WZTRequest {
    enum class Method { Get, Post };

    QLatin1StringView path;
    Method method = Method::Get;
    /// In the order in which they are sent.
    std::span<const WZTParameter> parameters;
};

namespace WZTRequestFrame {

/// What came back: nil for a transport error, a null document for a body that is no JSON object
/// or list.
using Reply = std::optional<QJsonDocument>;

/// What `request` sends with one value for each of its parameters.
[[nodiscard]] QList<NSURLQueryItem> queryItems(const WZTRequest &request,
                                               std::span<const std::optional<QString>> values);

/// Sends `request` over the shared URL session, with one value for each of its parameters, and
/// returns at once. A nil value that is always sent goes out as a bare name. `decode` runs exactly
/// once, on the session's thread, or on this one when there is no session (any more).
void send(const WZTRequest &request, std::span<const std::optional<QString>> values,
          std::function<void(const Reply &)> decode);

} // namespace WZTRequestFrame
