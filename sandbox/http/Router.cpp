// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/Router.h"

#include "sandbox/http/HttpMessage.h"
#include "sandbox/http/Request.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sandbox {

namespace {

// A percent-encoded character may have twelve bytes. The limit is below that of a head, so that the
// answer is 414.
constexpr qsizetype longestTarget = 61'440;
constexpr qsizetype longestParameter = 5'000;

bool isReadable(const Request &request)
{
    return request.isValidUtf8
        && std::none_of(request.items.begin(), request.items.end(), [](const QueryItem &item) {
               return item.value && item.value->size() > longestParameter;
           });
}

Reply noRequest(int status)
{
    switch (status) {
    case 413:
        return resultReply("Content Too Large"_L1, status);
    case 414:
        return resultReply("URI Too Long"_L1, status);
    case 431:
        return resultReply("Request Header Fields Too Large"_L1, status);
    default:
        return resultReply("Bad Request"_L1, status);
    }
}

} // namespace

const Endpoint *Router::endpoint(const QByteArray &path) const
{
    const auto found = std::find_if(m_endpoints.begin(), m_endpoints.end(),
                                    [&](const Endpoint &each) { return each.path == path; });
    return found == m_endpoints.end() ? nullptr : &*found;
}

Reply Router::answer(const Request &request) const
{
    if (request.malformed || request.target.size() > longestTarget) {
        return noRequest(request.malformed ? request.malformed : 414);
    }
    const Endpoint *found = endpoint(request.path);
    if (!found) {
        return resultReply("Not Found"_L1, 404);
    }
    if (request.method != found->method) {
        Reply reply = resultReply("Method Not Allowed"_L1, 405);
        reply.headers.append({"Allow", found->method});
        return reply;
    }
    return isReadable(request) ? found->answer(request) : resultReply(found->unreadable, 400);
}

} // namespace sandbox
