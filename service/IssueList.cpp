// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "service/IssueReply.h"
#include "service/WZTAPI.h"
#include "service/WZTRequest.h"

using namespace Qt::StringLiterals;

void WZTAPI::issuesForPackageIdentifier(const Text &identifier, IssuesCompletion completion)
{
    const WZTRequest request{"GET", u"/issues.php"_s, {{u"packageId"_s, identifier}}};
    request.sendForBody([completion = std::move(completion)](WZTRequest::Body body) {
        const IssueReply reply = body ? IssueReply::fromBody(std::move(*body)) : IssueReply();
        completion(reply.code, reply.issues);
    });
}
