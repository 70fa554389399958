// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/sandbox/Client.h"

#include <QElapsedTimer>
#include <QJsonDocument>

#include <curl/curl.h>

namespace {

size_t collect(char *bytes, size_t, size_t size, void *into)
{
    auto *collected = static_cast<QByteArray *>(into);
    collected->append(bytes, qsizetype(size));
    return collected->size() > 1'048'576 ? 0 : size;
}

} // namespace

QJsonObject Answer::json() const
{
    return QJsonDocument::fromJson(body).object();
}

QString Answer::result() const
{
    return json().value(QStringLiteral("result")).toString();
}

Client::Client(quint16 port, const QString &caFile)
    : m_port(port), m_caFile(caFile.toUtf8()), m_handle(curl_easy_init(), curl_easy_cleanup)
{
}

Answer Client::send(const Call &call)
{
    CURL *handle = m_handle.get();
    Answer answer;
    curl_slist *headers = nullptr;
    for (const QByteArray &each : call.headers)
        headers = curl_slist_append(headers, each.constData());
    const QByteArray url = "https://" + call.host + ':' + QByteArray::number(m_port) + call.target;
    curl_easy_reset(handle);
    curl_easy_setopt(handle, CURLOPT_URL, url.constData());
    curl_easy_setopt(handle, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(handle, CURLOPT_CAINFO, m_caFile.constData());
    curl_easy_setopt(handle, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(handle, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, call.timeout);
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, call.followsRedirects ? 1L : 0L);
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);
    if (call.method == "POST") {
        curl_easy_setopt(handle, CURLOPT_POST, 1L);
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE, long(call.body.size()));
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, call.body.constData());
    } else if (call.method == "HEAD") {
        curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    } else {
        curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, call.method.constData());
    }
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, collect);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer.body);
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, collect);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &answer.head);
    QElapsedTimer timer;
    timer.start();
    answer.error = curl_easy_perform(handle);
    answer.milliseconds = timer.elapsed();
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &answer.status);
    curl_slist_free_all(headers);
    return answer;
}
