// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "app/QueryString.h"

#include <QStringDecoder>
#include <QStringList>

namespace {

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

/// Whether every percent sign is followed by two hexadecimal digits.
bool isWellFormed(const QByteArray &bytes)
{
    for (qsizetype at = bytes.indexOf('%'); at >= 0; at = bytes.indexOf('%', at + 1)) {
        if (at + 2 >= bytes.size() || !isHexDigit(bytes[at + 1]) || !isHexDigit(bytes[at + 2])) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<QString> QueryString::stringByRemovingPercentEncoding(const QString &text)
{
    const QByteArray encoded = text.toUtf8();
    if (!text.isValidUtf16() || !isWellFormed(encoded)) {
        return std::nullopt;
    }
    const QByteArray bytes = QByteArray::fromPercentEncoding(encoded);
    if (!bytes.isValidUtf8()) {
        return std::nullopt;
    }
    // Unlike QString::fromUtf8, this keeps a byte order mark.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

QMap<QString, QString> QueryString::parse(const QString &text)
{
    QMap<QString, QString> items;
    for (const QString &piece : text.split(u'&')) {
        const QStringList parts = piece.split(u'=');
        if (parts.size() < 2) {
            continue;
        }
        const auto name = stringByRemovingPercentEncoding(parts[0]);
        const auto value = stringByRemovingPercentEncoding(parts[1]);
        if (name && value) {
            items[*name] = *value;
        }
    }
    return items;
}
