// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

/// The service that a URL leads to.
struct URLOrigin {
    /// Both in lower case.
    QByteArray scheme;
    QByteArray host;
    /// 443 for "https" without a port, otherwise 0 when there is none.
    int port = 0;

    /// Nil for everything but `scheme://host` or `scheme://host:port` and what may follow that:
    /// no user name, and no character in the host that two readers might understand differently.
    [[nodiscard]] static std::optional<URLOrigin> of(const QByteArray &url);

    [[nodiscard]] bool isLoopback() const;

    bool operator==(const URLOrigin &) const = default;
};
