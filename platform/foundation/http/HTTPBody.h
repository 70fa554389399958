// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <utility>

struct z_stream_s;

/// The body of one reply, decoded as it arrives: plain or gzip (RFC 9110, 8.4; RFC 1952). libcurl
/// does not decode it, because libcurl accepts a truncated gzip body.
class HTTPBody {
public:
    /// The value of a request's Accept-Encoding field.
    static constexpr char acceptedCoding[] = "gzip";

    /// `maximumLength`: of the decoded body.
    explicit HTTPBody(qsizetype maximumLength);

    /// Sets the coding by the value of the reply's Content-Encoding field, before the first byte.
    /// False for a coding that the request did not accept.
    [[nodiscard]] bool setCoding(QByteArray coding);

    /// Appends received bytes. An error ends the transfer.
    [[nodiscard]] std::optional<URLErrorCode> append(const char *bytes, size_t length);

    /// False if bytes are missing at the end of a gzip body. Always true for a plain one.
    [[nodiscard]] bool isComplete() const { return !m_inflater || m_isComplete; }

    /// Hands over the decoded bytes; a second call returns none.
    [[nodiscard]] QByteArray takeDecoded() { return std::exchange(m_decoded, {}); }

private:
    [[nodiscard]] std::optional<URLErrorCode> add(const char *bytes, size_t length);
    [[nodiscard]] std::optional<URLErrorCode> inflate(const char *bytes, size_t length);

    qsizetype m_maximumLength;
    size_t m_received = 0;
    QByteArray m_decoded;
    std::unique_ptr<z_stream_s, void (*)(z_stream_s *)> m_inflater;
    bool m_isComplete = false;
};
