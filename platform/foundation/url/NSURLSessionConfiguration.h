// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

/// The addresses, authorities and limits of a session's connections. A session copies its
/// configuration when it is made.
struct NSURLSessionConfiguration {
    /// PEM file of the only authorities to trust. Empty: the system's authorities.
    QString certificateAuthorityFile;

    /// "host:port" to connect to instead of the host and port of every URL, for example
    /// "127.0.0.1:8443". The server's certificate must still name the URL's host. Empty: the URL's
    /// own host and port.
    QString connectTo;

    /// A request fails with NSURLErrorTimedOut after this time without progress: no phase of
    /// connecting completed and no byte received. A slow reply that keeps arriving never times out.
    std::chrono::milliseconds timeoutIntervalForRequest = std::chrono::seconds(60);

    /// Maximum length of a body in bytes after decompression. A longer one, or one of more than 64
    /// MiB before decompression, fails with NSURLErrorDataLengthExceedsMaximum.
    qsizetype maximumBodyLength = qsizetype{16} * 1024 * 1024;

    /// The module with the HTTP client, loaded with the first request. A plain name is searched
    /// where the application's modules are installed. Every request fails with NSURLErrorUnknown if
    /// it cannot be loaded.
    QString httpModule = QStringLiteral("wzt-http.so");
};
