// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Through which proxy requests go.
struct HTTPProxy {
    /// As libcurl takes it. Empty: none.
    QByteArray url;
    /// The hosts that are reached without it, separated by commas.
    QByteArray exceptions;

    /// What libcurl would read in the environment for an "https" URL. Reading it for libcurl, once,
    /// leaves the environment to the thread that changes it.
    [[nodiscard]] static HTTPProxy fromEnvironment();
};
