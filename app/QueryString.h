// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <optional>

namespace QueryString {

/// `text` with its percent sequences replaced by the characters they stand for. Nil when a
/// sequence is malformed or the bytes are not UTF-8. A plus sign stays one.
[[nodiscard]] std::optional<QString> stringByRemovingPercentEncoding(const QString &text);

/// The items of "a=1&b=%20x", decoded. Of repeated names the last counts, and what follows a second
/// equals sign is ignored. A piece without an equals sign or with a malformed encoding is left out.
[[nodiscard]] QMap<QString, QString> parse(const QString &text);

} // namespace QueryString
