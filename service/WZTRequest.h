// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLQueryItem.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QList>

#include <functional>
#include <optional>

/// One request to the service. The parameters travel in the URL's query with either method; there
/// are no header fields and no body.
struct WZTRequest {
    /// Nil for a transport error; a null document for a body that is neither a JSON object nor
    /// a JSON list.
    using Reply = std::optional<QJsonDocument>;
    /// Nil for a transport error.
    using Body = std::optional<QByteArray>;

    /// "GET" or "POST".
    QByteArray method;
    QString path;
    /// In the order in which they are sent. A nil value is sent as a bare name, an empty one as an
    /// empty value.
    QList<NSURLQueryItem> parameters;

    /// Overwrites the values that nobody else holds: one may be a password digest.
    ~WZTRequest();

    /// Sends the request over the shared URL session and returns at once. `completion` runs exactly
    /// once, on the session's thread; without a session it runs on this one, before the return.
    void send(std::function<void(const Reply &)> completion) const;
    /// The same for a reply that is read otherwise. Nobody else holds the body.
    void sendForBody(std::function<void(Body)> completion) const;
};
