// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

/// Where the connections of a session go, whom they trust and what they put up with.
/// Given to the session once, at construction.
struct NSURLSessionConfiguration {
    /// PEM file of the only authorities to trust. Empty: the system's authorities.
    QString certificateAuthorityFile;

    /// "host:port" to connect to instead of the host and port of every URL, for example
    /// "127.0.0.1:8443". The server must still prove to be the URL's host. Empty: as the URL says.
    QString connectTo;

    /// A request fails with NSURLErrorTimedOut when no step of connecting was done and nothing of
    /// the reply received for so long. A reply that keeps coming, however slowly, is not timed out.
    std::chrono::milliseconds timeoutIntervalForRequest = std::chrono::seconds(60);

    /// Longest body, in bytes after decompression; a longer one is
    /// NSURLErrorDataLengthExceedsMaximum, as is one of more than 64 MiB before.
    qsizetype maximumBodyLength = qsizetype{16} * 1024 * 1024;
};
