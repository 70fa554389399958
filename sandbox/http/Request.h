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
    /// Nil for an item without an equals sign.
    std::optional<QString> value;

    bool operator==(const QueryItem &) const = default;
};

/// A received request.
struct Request {
    /// The method, "GET" for instance.
    QByteArray method = {};
    /// The raw target up to its question mark: "/login.php".
    QByteArray path = {};
    /// The raw target: path, question mark and query, percent-encoded.
    QByteArray target = {};
    /// The decoded items of the query, in their order; see setTarget. Bytes that are not UTF-8
    /// become U+FFFD, and isValidUtf8 is false.
    QList<QueryItem> items = {};
    bool isValidUtf8 = true;
    /// The header fields in their order.
    QList<std::pair<QByteArray, QByteArray>> headers;
    /// The length of the body in bytes.
    qint64 bodySize = 0;
    /// Whether the client allows another request on the connection.
    bool keepsAlive = true;
    /// 0, or the HTTP status of a malformed request: 400, 413 or 431. The other members are then
    /// empty, and Sandbox::requests() does not contain it.
    int malformed = 0;

    /// The first header field of that name, compared without regard to case; nil if there is none.
    [[nodiscard]] std::optional<QByteArray> header(QByteArrayView name) const;
    /// The value of the last item of that name, as in PHP; empty if the item has no value, nil if
    /// there is no such item.
    [[nodiscard]] std::optional<QString> parameter(QStringView name) const;
    /// The same, but empty if there is no such item.
    [[nodiscard]] QString text(QStringView name) const
    {
        return parameter(name).value_or(QString());
    }
};

} // namespace sandbox
