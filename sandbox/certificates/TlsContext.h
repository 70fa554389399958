// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/certificates/Certificate.h"

using SSL_CTX = struct ssl_ctx_st;

namespace sandbox {

/// A server's TLS context with that certificate: TLS 1.2 or later, HTTP/1.1 by ALPN (RFC 7301).
/// Null without a certificate, or if the cryptographic library fails.
std::shared_ptr<SSL_CTX> makeContext(const std::optional<Certificate> &certificate);

/// The same for TLS 1.0 and 1.1 only.
std::shared_ptr<SSL_CTX> makeOldContext(const Certificate &certificate);

} // namespace sandbox
