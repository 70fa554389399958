// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/QueryItems.h"

#include <QStringDecoder>

namespace sandbox {

namespace {

bool isHex(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

QByteArray decoded(const QByteArray &encoded)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < encoded.size(); ++i) {
        const QByteArray digits = encoded.mid(i + 1, 2);
        if (encoded[i] == '%' && digits.size() == 2 && isHex(digits[0]) && isHex(digits[1])) {
            bytes.append(static_cast<char>(digits.toUShort(nullptr, 16)));
            i += 2;
        } else {
            bytes.append(encoded[i] == '+' ? ' ' : encoded[i]);
        }
    }
    return bytes;
}

QString text(Request &request, const QByteArray &encoded)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(decoded(encoded));
    request.isValidUtf8 = request.isValidUtf8 && !decoder.hasError();
    return text;
}

} // namespace

void setTarget(Request &request, const QByteArray &target)
{
    const qsizetype mark = target.indexOf('?');
    request.target = target;
    request.path = mark < 0 ? target : target.left(mark);
    if (mark < 0) {
        return;
    }
    const QByteArrayList pieces = target.mid(mark + 1).split('&');
    for (const QByteArray &piece : pieces) {
        if (piece.isEmpty()) {
            continue;
        }
        const qsizetype equals = piece.indexOf('=');
        QueryItem item{.name = text(request, equals < 0 ? piece : piece.left(equals)), .value = {}};
        if (equals >= 0) {
            item.value = text(request, piece.mid(equals + 1));
        }
        request.items.append(item);
    }
}

} // namespace sandbox
