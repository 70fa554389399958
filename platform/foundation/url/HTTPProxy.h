// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The proxy of a session.
struct HTTPProxy {
    /// In libcurl's syntax. Empty: no proxy.
    QByteArray url;
    /// The hosts that need no proxy, separated by commas.
    QByteArray exceptions;

    /// The variables that libcurl would read for an "https" URL. libcurl itself would read them on
    /// the session's thread, while another thread may change the environment.
    [[nodiscard]] static HTTPProxy fromEnvironment();
};
