// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/Gzip.h"

#define ZLIB_CONST
#include <zlib.h>

namespace sandbox {

QByteArray gzipped(const QByteArray &bytes)
{
    constexpr int gzipWindow = 15 + 16;
    constexpr int memoryLevel = 8;
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipWindow, memoryLevel,
                 Z_DEFAULT_STRATEGY);
    QByteArray zipped(static_cast<qsizetype>(deflateBound(&stream, uLong(bytes.size()))), '\0');
    stream.next_in = reinterpret_cast<const Bytef *>(bytes.constData());
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(zipped.data());
    stream.avail_out = static_cast<uInt>(zipped.size());
    deflate(&stream, Z_FINISH);
    zipped.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return zipped;
}

} // namespace sandbox
