// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <optional>

namespace QueryString {

/// `text` with its percent sequences decoded. Nil when a sequence is malformed or the bytes are not
/// UTF-8. A plus sign stays a plus sign.
[[nodiscard]] std::optional<QString> stringByRemovingPercentEncoding(const QString &text);

/// The decoded items of a query such as "a=1&b=%20x". The last of several equal names counts. Text
/// after a second equals sign is ignored, and so is an item without an equals sign or with
/// a malformed encoding.
[[nodiscard]] QMap<QString, QString> parse(const QString &text);

} // namespace QueryString
