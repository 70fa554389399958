// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Router.h"
#include "sandbox/storage/IssueStore.h"

namespace sandbox {

/// What the two issue endpoints do. A list is answered with a JSON list of objects, an accepted
/// submission with {"issueId": number}, everything else with {"result": text}.
class IssueEndpoints {
public:
    explicit IssueEndpoints(IssueStore &store) : m_store(store) {}

    /// They refer to this object.
    QList<Endpoint> endpoints();

private:
    Reply list(const Request &request);
    Reply submission(const Request &request);

    IssueStore &m_store;
};

} // namespace sandbox
