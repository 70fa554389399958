// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/url/NSURLQueryItem.h"

#include <QByteArray>
#include <QList>

/// Composes a URL (RFC 3986) from plain text.
///
/// In names and values every character but the unreserved ones (letters, digits, "-._~") is
/// percent-encoded, "+" as well, which servers read as a blank. A path keeps its slashes. A percent
/// sequence in a text is text: "%41" is sent as "%2541".
class NSURLComponents {
public:
    void setScheme(const QString &scheme) { m_scheme = scheme; }
    void setHost(const QString &host) { m_host = host; }
    /// Absolute, with its leading slash.
    void setPath(const QString &path) { m_path = path; }
    /// In the order of the query; an empty list makes a URL without a question mark.
    void setQueryItems(const QList<NSURLQueryItem> &items) { m_queryItems = items; }

    /// The percent-encoded URL, in ASCII. Nil if scheme or host is empty or needs encoding, if the
    /// path does not begin with a slash, or if a text is not valid Unicode.
    [[nodiscard]] std::optional<QByteArray> URL() const;

private:
    QString m_scheme;
    QString m_host;
    QString m_path;
    QList<NSURLQueryItem> m_queryItems;
};
