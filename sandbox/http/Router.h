// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Reply.h"

#include <QLatin1StringView>
#include <QList>

#include <functional>

namespace sandbox {

struct Request;

/// One path of the service.
struct Endpoint {
    QByteArray path;
    QByteArray method;
    /// The outcome of a request whose parameters cannot even be read.
    QLatin1StringView unreadable;
    /// Does the work; on any thread, several at a time.
    std::function<Reply(const Request &)> answer;
};

/// Finds the endpoint for a request, and answers what is none by itself: no HTTP, too long, not
/// UTF-8, an unknown path, another method.
class Router {
public:
    void add(const QList<Endpoint> &endpoints) { m_endpoints += endpoints; }
    [[nodiscard]] Reply answer(const Request &request) const;
    /// Absent (null) for an unknown path.
    [[nodiscard]] const Endpoint *endpoint(const QByteArray &path) const;

private:
    QList<Endpoint> m_endpoints;
};

} // namespace sandbox
