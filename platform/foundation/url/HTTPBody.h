// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSError.h"

#include <QByteArray>

#include <memory>
#include <optional>

struct z_stream_s;

/// The body of one reply, decoded while it comes in. How it is coded, and where it ends, is looked
/// at here and not in libcurl, to which a compressed body that was cut is as good as a whole one.
class HTTPBody {
public:
    /// What a request offers to understand, as the value of its Accept-Encoding field.
    static constexpr char offered[] = "gzip";

    /// `maximumLength`: of what it decodes to.
    explicit HTTPBody(qsizetype maximumLength);

    /// Before the first byte: how the body is coded, as the reply's Content-Encoding field says it.
    /// False for a coding that was not offered.
    [[nodiscard]] bool setCoding(QByteArray coding);

    /// Takes bytes as they came over the wire; says why the transfer must end.
    [[nodiscard]] std::optional<URLErrorCode> append(const char *bytes, size_t length);

    /// Whether no coded byte is missing at its end. A body that is not coded cannot tell.
    [[nodiscard]] bool isWhole() const { return !m_inflater || m_isWhole; }

    [[nodiscard]] const QByteArray &decoded() const { return m_decoded; }

private:
    [[nodiscard]] std::optional<URLErrorCode> add(const char *bytes, size_t length);
    [[nodiscard]] std::optional<URLErrorCode> inflate(const char *bytes, size_t length);

    qsizetype m_maximumLength;
    size_t m_received = 0;
    QByteArray m_decoded;
    std::unique_ptr<z_stream_s, void (*)(z_stream_s *)> m_inflater;
    bool m_isWhole = false;
};
