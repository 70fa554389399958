// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "model/WZTSession.h"
#include "platform/foundation/base/NSLog.h"
#include "service/WZTAPI.h"
#include "service/WZTRequest.h"

#include <QJsonObject>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

enum SubmissionCode : NSUInteger {
    Accepted = 0, // an object without "result", or no JSON
    Refused = 1, // a transport error, a list, or an object with "result", whatever its value
};

SubmissionCode codeFor(const WZTRequest::Reply &reply)
{
    const bool isRefused = !reply || reply->isArray() || reply->object().contains("result"_L1);
    return isRefused ? Refused : Accepted;
}

/// 0 while nobody is signed in.
QString reporterId()
{
    const WZTSession *session = WZTSession::shared();
    const bool isSignedIn = session && session->currentUser();
    return QString::number(isSignedIn ? session->currentUser()->tavloId : 0);
}

QString description(const QList<NSURLQueryItem> &items)
{
    QStringList texts;
    for (const NSURLQueryItem &item : items) {
        texts.append(item.name + u" = "_s + item.value.value_or(u"(null)"_s));
    }
    return u'(' + texts.join(u", "_s) + u')';
}

} // namespace

void WZTAPI::submitIssueForPackage(const Text &identifier, const Text &title,
                                   const Text &issueDescription, CodeCompletion completion)
{
    WZTRequest request{
        "POST",
        u"/submitissue.php"_s,
        {{u"packageId"_s, identifier}, {u"title"_s, title}, {u"reporterId"_s, reporterId()}}};
    if (issueDescription) {
        request.parameters.append({u"description"_s, issueDescription});
    }
    NSLog(u"Query Items: "_s + description(request.parameters));
    request.send([completion = std::move(completion)](const WZTRequest::Reply &reply) {
        completion(codeFor(reply));
    });
}
