// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace sandbox {

/// One item of a request's query, decoded.
struct QueryItem {
    QString name;
    /// Absent when the item was sent without an equals sign.
    std::optional<QString> value;

    bool operator==(const QueryItem &) const = default;
};

/// A request as it came over the wire.
struct Request {
    /// "GET", "POST", or whatever else the client sent.
    QByteArray method = {};
    /// The target up to its question mark, as sent: "/login.php".
    QByteArray path = {};
    /// The whole target, byte for byte: path, question mark and query, still percent-encoded.
    QByteArray target = {};
    /// The query's items in the order sent, percent-decoded, '+' read as a blank. Bytes that are
    /// not UTF-8 show as U+FFFD, and isValidUtf8 is false then.
    QList<QueryItem> items = {};
    bool isValidUtf8 = true;
    /// Header fields in the order sent, names as sent.
    QList<std::pair<QByteArray, QByteArray>> headers;
    /// Bytes of the body.
    qint64 bodySize = 0;
    /// Whether the client lets the connection be used again.
    bool keepsAlive = true;
    /// 0, or the HTTP status that says why this is no request: 400, 413 or 431. Everything else is
    /// then empty, and requests() of Sandbox does not list it.
    int malformed = 0;

    /// The first header field of that name, without regard to case; absent when none was sent.
    [[nodiscard]] std::optional<QByteArray> header(QByteArrayView name) const;
    /// The value of the last item of that name, as PHP reads repeated names: empty when the item
    /// has no value, absent when there is no such item.
    [[nodiscard]] std::optional<QString> parameter(QStringView name) const;
};

} // namespace sandbox
