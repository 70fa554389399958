// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/base/Overwrite.h"

#include <QByteArray>

/// A URL and a method. A request has no header fields and no body; a "POST" has its parameters in
/// its URL and sends an empty body. The URL, which may contain a password digest, is overwritten
/// with the last copy of the request.
class NSMutableURLRequest {
public:
    /// `url`: absolute and percent-encoded, as NSURLComponents makes it. The method is "GET".
    [[nodiscard]] static NSMutableURLRequest requestWithURL(const QByteArray &url)
    {
        return NSMutableURLRequest(url);
    }

    ~NSMutableURLRequest() { overwrite(m_url); }
    NSMutableURLRequest(const NSMutableURLRequest &) = default;
    NSMutableURLRequest(NSMutableURLRequest &&) = default;
    NSMutableURLRequest &operator=(const NSMutableURLRequest &) = default;
    NSMutableURLRequest &operator=(NSMutableURLRequest &&) = default;

    [[nodiscard]] const QByteArray &URL() const { return m_url; }

    [[nodiscard]] const QByteArray &HTTPMethod() const { return m_method; }
    /// "GET" or "POST"; a task with any other method fails with NSURLErrorUnsupportedURL.
    void setHTTPMethod(const QByteArray &method) { m_method = method; }

private:
    explicit NSMutableURLRequest(const QByteArray &url) : m_url(url) {}

    QByteArray m_url;
    QByteArray m_method = "GET";
};
