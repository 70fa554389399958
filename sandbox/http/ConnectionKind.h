// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

namespace sandbox {

/// How the service handles a new connection up to its first request.
enum class ConnectionKind {
    /// The ordinary certificate.
    Normal,
    /// A certificate of the service's authority for the right names, but expired.
    Expired,
    /// A certificate of the service's authority for another name.
    WrongHost,
    /// A valid certificate for the right names, but of an unknown authority.
    Untrusted,
    /// The ordinary certificate, but TLS 1.1 at most.
    OldTls,
    /// The ordinary certificate, two seconds after the connection was accepted.
    LateHandshake,
    /// The service accepts the connection and sends nothing, not even a TLS handshake.
    NoHandshake,
};

} // namespace sandbox
