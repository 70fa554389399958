// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/HTTPBody.h"

#define ZLIB_CONST
#include <zlib.h>

#include <array>

namespace {

/// Of encoded bytes: an endless gzip body may decode to nothing.
constexpr size_t maximumReceived = size_t{64} * 1024 * 1024;

/// The largest window, plus 16 to accept gzip (RFC 1952) only.
constexpr int gzipWindow = 15 + 16;

void deleteHeld(z_stream *stream)
{
    inflateEnd(stream);
    delete stream;
}

} // namespace

HTTPBody::HTTPBody(qsizetype maximumLength)
    : m_maximumLength(maximumLength), m_inflater(nullptr, deleteHeld)
{
}

bool HTTPBody::setCoding(QByteArray coding)
{
    coding = coding.trimmed().toLower();
    if (coding.isEmpty() || coding == "identity") {
        return true;
    }
    if (coding != "gzip" && coding != "x-gzip") {
        return false;
    }
    m_inflater.reset(new z_stream());
    return inflateInit2(m_inflater.get(), gzipWindow) == Z_OK;
}

std::optional<URLErrorCode> HTTPBody::append(const char *bytes, size_t length)
{
    if (length > maximumReceived - m_received) {
        return NSURLErrorDataLengthExceedsMaximum;
    }
    m_received += length;
    return m_inflater ? inflate(bytes, length) : add(bytes, length);
}

std::optional<URLErrorCode> HTTPBody::add(const char *bytes, size_t length)
{
    if (static_cast<qsizetype>(length) > m_maximumLength - m_decoded.size()) {
        return NSURLErrorDataLengthExceedsMaximum;
    }
    m_decoded.append(bytes, static_cast<qsizetype>(length));
    return std::nullopt;
}

std::optional<URLErrorCode> HTTPBody::inflate(const char *bytes, size_t length)
{
    std::array<char, size_t{64} * 1024> piece;
    z_stream &stream = *m_inflater;
    stream.next_in = reinterpret_cast<const Bytef *>(bytes);
    stream.avail_in = static_cast<uInt>(length);
    bool hasMore = false;
    while (stream.avail_in > 0 || hasMore) {
        if (m_isComplete) {
            // A body may consist of several gzip members (RFC 1952, 2.2).
            inflateReset(&stream);
        }
        stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        const int state = ::inflate(&stream, Z_NO_FLUSH);
        if (state != Z_OK && state != Z_STREAM_END && state != Z_BUF_ERROR) {
            return NSURLErrorCannotDecodeContentData;
        }
        m_isComplete = state == Z_STREAM_END;
        hasMore = !m_isComplete && stream.avail_out == 0;
        if (const auto error = add(piece.data(), piece.size() - stream.avail_out)) {
            return error;
        }
    }
    return std::nullopt;
}
