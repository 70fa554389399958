// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

/// Scheme, host and port of a URL (RFC 6454; syntax of RFC 3986).
struct URLOrigin {
    /// Both in lower case.
    QByteArray scheme;
    QByteArray host;
    /// 443 for "https" without a port, otherwise 0 when there is none.
    int port = 0;

    /// Nil unless the URL begins with `scheme://host` or `scheme://host:port`. A user name and
    /// unusual characters in the host are refused: two parsers might read them differently.
    [[nodiscard]] static std::optional<URLOrigin> of(const QByteArray &url);

    [[nodiscard]] bool isLoopback() const;

    bool operator==(const URLOrigin &) const = default;
};
