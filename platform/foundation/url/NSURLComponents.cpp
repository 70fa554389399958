// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSURLComponents.h"

#include "platform/foundation/base/Overwrite.h"

#include <algorithm>

namespace {

constexpr qsizetype maximumExpectedQuery = 2048;

bool isPlainName(const QString &text, QStringView punctuation)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [&](QChar c) {
        return (c.unicode() < 128 && c.isLetterOrNumber()) || punctuation.contains(c);
    });
}

/// QByteArray::toPercentEncoding keeps exactly the unreserved characters of RFC 3986 and `kept`.
std::optional<QByteArray> percentEncoded(const QString &text, const QByteArray &kept = {})
{
    if (!text.isValidUtf16()) {
        return std::nullopt;
    }
    QByteArray bytes = text.toUtf8();
    const QByteArray encoded = bytes.toPercentEncoding(kept);
    overwrite(bytes);
    return encoded;
}

/// Appends an item, and overwrites the encoded value, which may be a password digest.
bool append(QByteArray &query, const NSURLQueryItem &item)
{
    const std::optional<QByteArray> name = percentEncoded(item.name);
    std::optional<QByteArray> value = percentEncoded(item.value.value_or(QString()));
    if (!name || !value) {
        return false;
    }
    query += query.isEmpty() ? '?' : '&';
    query += *name;
    if (item.value) {
        query += '=';
        query += *value;
    }
    overwrite(*value);
    return true;
}

} // namespace

std::optional<QByteArray> NSURLComponents::URL() const
{
    const std::optional<QByteArray> path = percentEncoded(m_path, "/");
    if (!isPlainName(m_scheme, u"+-.") || !isPlainName(m_host, u"-.") || !path
        || !path->startsWith('/')) {
        return std::nullopt;
    }
    QByteArray query;
    // A query that grows is copied, and the copies are not overwritten.
    query.reserve(maximumExpectedQuery);
    for (const NSURLQueryItem &item : m_queryItems) {
        if (!append(query, item)) {
            return std::nullopt;
        }
    }
    QByteArray url = m_scheme.toLatin1() + "://" + m_host.toLatin1() + *path + query;
    overwrite(query);
    return url;
}
