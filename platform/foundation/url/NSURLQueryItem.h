// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// One name of a URL's query, with or without a value.
struct NSURLQueryItem {
    QString name;
    /// Nil: the query has the bare name, without an equals sign. An empty value keeps the sign.
    std::optional<QString> value;

    /// Plain texts; NSURLComponents encodes them.
    [[nodiscard]] static NSURLQueryItem queryItemWithName(QString name,
                                                          std::optional<QString> value);

    bool operator==(const NSURLQueryItem &) const = default;
};
