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
    /// The result for a request with unreadable parameters.
    QLatin1StringView unreadable;
    /// Called on any thread, concurrently.
    std::function<Reply(const Request &)> answer;
};

/// Finds the endpoint of a request. Answers requests without an endpoint itself: malformed, too
/// long, not UTF-8, with an unknown path or another method.
class Router {
public:
    void add(const QList<Endpoint> &endpoints) { m_endpoints += endpoints; }
    [[nodiscard]] Reply answer(const Request &request) const;
    /// Null for an unknown path.
    [[nodiscard]] const Endpoint *endpoint(const QByteArray &path) const;

private:
    QList<Endpoint> m_endpoints;
};

} // namespace sandbox
