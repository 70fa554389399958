// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Reply.h"
#include "sandbox/http/Transmission.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace sandbox {

struct Request;

/// A reply with that JSON object or list as its body.
Reply jsonReply(const QJsonObject &object, int status = 200);
Reply jsonListReply(const QJsonArray &list);
/// A reply with the body {"result": text}.
Reply resultReply(QLatin1StringView text, int status = 200);

/// The head of a reply (RFC 9112): status line, header fields and empty line. Nil for `length`
/// makes a head without Content-Length.
QByteArray headOf(const Reply &reply, bool keepsAlive, std::optional<qint64> length);

/// The ordinary answer: complete and at once. Keeps the connection if the client requested it.
Transmission transmissionOf(const Request &request, const Reply &reply);

} // namespace sandbox
