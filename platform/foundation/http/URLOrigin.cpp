// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/http/URLOrigin.h"

#include <QRegularExpression>

std::optional<URLOrigin> URLOrigin::of(const QByteArray &url)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([a-z][a-z0-9+.-]*)://([a-z0-9.-]+|\\[[0-9a-f:.]+\\])(?::([0-9]{1,5}))?"
                       "(?:[/?#]|\\z)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(url));
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const QByteArray scheme = match.captured(1).toLatin1().toLower();
    const int standardPort = scheme == "https" ? 443 : 0;
    return URLOrigin{scheme, match.captured(2).toLatin1().toLower(),
                     match.hasCaptured(3) ? match.captured(3).toInt() : standardPort};
}

bool URLOrigin::isLoopback() const
{
    return host == "localhost" || host == "[::1]" || host.startsWith("127.");
}
