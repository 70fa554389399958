// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLQueryItem.h"

#include <QByteArray>
#include <QList>

/// Puts a URL together from plain text.
///
/// Everything but letters, digits and "-._~" is percent-encoded in names and values (so that "+"
/// is "%2B" and never read as a blank); a path keeps its slashes. Percent sequences that a text
/// happens to contain are not taken for encoding: "%41" is sent as "%2541".
class NSURLComponents {
public:
    void setScheme(const QString &scheme) { m_scheme = scheme; }
    void setHost(const QString &host) { m_host = host; }
    /// Absolute, with its leading slash.
    void setPath(const QString &path) { m_path = path; }
    /// Sent in this order; an empty list leaves the question mark out.
    void setQueryItems(const QList<NSURLQueryItem> &items) { m_queryItems = items; }

    /// The percent-encoded URL, ASCII only. Nil when scheme or host is empty or is no plain name,
    /// when the path does not begin with a slash, or when a text is no valid Unicode.
    [[nodiscard]] std::optional<QByteArray> URL() const;

private:
    QString m_scheme;
    QString m_host;
    QString m_path;
    QList<NSURLQueryItem> m_queryItems;
};
