// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/url/NSURLComponents.h"

#include <algorithm>

namespace {

bool isPlainName(const QString &text, QStringView punctuation)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [&](QChar c) {
        return (c.unicode() < 128 && c.isLetterOrNumber()) || punctuation.contains(c);
    });
}

/// QByteArray::toPercentEncoding leaves exactly the unreserved characters and `kept` alone.
std::optional<QByteArray> percentEncoded(const QString &text, const QByteArray &kept = {})
{
    if (!text.isValidUtf16()) {
        return std::nullopt;
    }
    return text.toUtf8().toPercentEncoding(kept);
}

std::optional<QByteArray> queryOf(const QList<NSURLQueryItem> &items)
{
    QByteArray query;
    for (const NSURLQueryItem &item : items) {
        const std::optional<QByteArray> name = percentEncoded(item.name);
        const std::optional<QByteArray> value = percentEncoded(item.value.value_or(QString()));
        if (!name || !value) {
            return std::nullopt;
        }
        query += query.isEmpty() ? '?' : '&';
        query += *name;
        if (item.value) {
            query += '=' + *value;
        }
    }
    return query;
}

} // namespace

std::optional<QByteArray> NSURLComponents::URL() const
{
    const std::optional<QByteArray> path = percentEncoded(m_path, "/");
    const std::optional<QByteArray> query = queryOf(m_queryItems);
    if (!isPlainName(m_scheme, u"+-.") || !isPlainName(m_host, u"-.") || !path
        || !path->startsWith('/') || !query) {
        return std::nullopt;
    }
    return QByteArray(m_scheme.toLatin1() + "://" + m_host.toLatin1() + *path + *query);
}
