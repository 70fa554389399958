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

/// A reply with that JSON object, or list, as its body.
Reply jsonReply(const QJsonObject &object, int status = 200);
Reply jsonListReply(const QJsonArray &list);
/// A reply that is only an outcome: {"result": text}.
Reply resultReply(QLatin1StringView text, int status = 200);

/// The status line and headers of a reply, up to and with the empty line. Without a length, none
/// is announced.
QByteArray headOf(const Reply &reply, bool keepsAlive, std::optional<qint64> length);

/// The ordinary answer to that request: whole, at once, the connection kept if the client wants.
Transmission transmissionOf(const Request &request, const Reply &reply);

} // namespace sandbox
