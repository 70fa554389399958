// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

namespace sandbox {

/// How a new connection is received, whatever is asked over it afterwards.
enum class ConnectionKind {
    /// The ordinary certificate.
    Normal,
    /// Issued by the service's authority for the right names, but out of date.
    Expired,
    /// Issued by the service's authority for another name.
    WrongHost,
    /// For the right names and in date, issued by an authority that nobody knows.
    Untrusted,
    /// The ordinary certificate, by TLS 1.1 and nothing newer.
    OldTls,
    /// The ordinary certificate, two seconds after the connection was accepted.
    LateHandshake,
    /// Accepted, and then not a byte: not even the TLS handshake.
    NoHandshake,
};

} // namespace sandbox
