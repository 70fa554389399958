// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Router.h"
#include "sandbox/storage/IssueStore.h"

namespace sandbox {

/// The two issue endpoints. They answer with a JSON list of issues, with {"issueId": number} for an
/// accepted submission, or with {"result": text}.
class IssueEndpoints {
public:
    explicit IssueEndpoints(IssueStore &store) : m_store(store) {}

    /// The endpoints refer to this object.
    QList<Endpoint> endpoints();

private:
    Reply list(const Request &request);
    Reply submission(const Request &request);

    IssueStore &m_store;
};

} // namespace sandbox
