// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// One name of a URL's query, with or without a value.
struct NSURLQueryItem {
    QString name;
    /// Without a value the item stands as its bare name, without an equals sign;
    /// an empty value keeps the equals sign.
    std::optional<QString> value;

    /// Neither text is percent-encoded; NSURLComponents does that.
    [[nodiscard]] static NSURLQueryItem queryItemWithName(QString name,
                                                          std::optional<QString> value);

    bool operator==(const NSURLQueryItem &) const = default;
};
