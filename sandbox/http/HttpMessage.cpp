// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/http/HttpMessage.h"

#include "sandbox/http/Request.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QLocale>

#include <array>
#include <utility>

namespace sandbox {

namespace {

constexpr std::array<std::pair<int, const char *>, 16> reasons{{
    {200, "OK"},
    {204, "No Content"},
    {301, "Moved Permanently"},
    {302, "Found"},
    {303, "See Other"},
    {307, "Temporary Redirect"},
    {308, "Permanent Redirect"},
    {400, "Bad Request"},
    {404, "Not Found"},
    {405, "Method Not Allowed"},
    {413, "Content Too Large"},
    {414, "URI Too Long"},
    {431, "Request Header Fields Too Large"},
    {500, "Internal Server Error"},
    {502, "Bad Gateway"},
    {503, "Service Unavailable"},
}};

// Replies contain personal data, and no page may embed them.
constexpr auto protections = "Cache-Control: no-store\r\n"
                             "X-Content-Type-Options: nosniff\r\n"
                             "Content-Security-Policy: default-src 'none'\r\n"
                             "Referrer-Policy: no-referrer\r\n";

QByteArray reasonOf(int status)
{
    for (const auto &[code, reason] : reasons) {
        if (code == status) {
            return reason;
        }
    }
    return "Status";
}

Reply documentReply(const QJsonDocument &document, int status)
{
    return {.status = status,
            .headers = {{"Content-Type", "application/json"}},
            .body = document.toJson(QJsonDocument::Compact)};
}

} // namespace

Reply jsonReply(const QJsonObject &object, int status)
{
    return documentReply(QJsonDocument(object), status);
}

Reply jsonListReply(const QJsonArray &list)
{
    return documentReply(QJsonDocument(list), 200);
}

Reply resultReply(QLatin1StringView text, int status)
{
    return jsonReply({{QStringLiteral("result"), text}}, status);
}

QByteArray headOf(const Reply &reply, bool keepsAlive, std::optional<qint64> length)
{
    const QString date =
        QLocale::c().toString(QDateTime::currentDateTimeUtc(), u"ddd, dd MMM yyyy HH:mm:ss 'GMT'");
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reasonOf(reply.status)
        + "\r\nDate: " + date.toLatin1() + "\r\n" + protections;
    for (const auto &[name, value] : reply.headers) {
        head += name + ": " + value + "\r\n";
    }
    if (length) {
        head += "Content-Length: " + QByteArray::number(*length) + "\r\n";
    }
    return head + (keepsAlive ? "Connection: keep-alive\r\n\r\n" : "Connection: close\r\n\r\n");
}

Transmission transmissionOf(const Request &request, const Reply &reply)
{
    const QByteArray head = headOf(reply, request.keepsAlive, reply.body.size());
    return {.bytes = request.method == "HEAD" ? head : head + reply.body,
            .ending =
                request.keepsAlive ? Transmission::Ending::KeepOpen : Transmission::Ending::Close};
}

} // namespace sandbox
