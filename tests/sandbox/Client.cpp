// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tests/sandbox/Client.h"

#include <curl/curl.h>

namespace {

size_t collect(char *bytes, size_t, size_t size, void *into)
{
    auto *collected = static_cast<QByteArray *>(into);
    collected->append(bytes, static_cast<qsizetype>(size));
    return collected->size() > 1'048'576 ? 0 : size;
}

} // namespace

Client::Client(quint16 port, const QString &caFile)
    : m_port(port), m_caFile(caFile.toUtf8()), m_handle(curl_easy_init(), curl_easy_cleanup)
{
}

Answer Client::send(const QByteArray &method, const QByteArray &target, long timeout,
                    const QByteArray &field)
{
    CURL *handle = m_handle.get();
    Answer answer;
    const QByteArray url = "https://localhost:" + QByteArray::number(m_port) + target;
    curl_easy_reset(handle);
    curl_easy_setopt(handle, CURLOPT_URL, url.constData());
    curl_easy_setopt(handle, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(handle, CURLOPT_CAINFO, m_caFile.constData());
    curl_easy_setopt(handle, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(handle, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, timeout);
    const std::unique_ptr<curl_slist, void (*)(curl_slist *)> fields(
        field.isEmpty() ? nullptr : curl_slist_append(nullptr, field.constData()),
        curl_slist_free_all);
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, fields.get());
    if (method == "POST") {
        curl_easy_setopt(handle, CURLOPT_POST, 1L);
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, "");
    }
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, collect);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer.body);
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, collect);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &answer.head);
    answer.error = curl_easy_perform(handle);
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &answer.status);
    return answer;
}
