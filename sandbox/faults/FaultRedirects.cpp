// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/Fault.h"
#include "sandbox/http/Request.h"

namespace sandbox {

namespace {

QByteArray hostOf(const Request &request, quint16 port)
{
    return request.header("Host").value_or("localhost:" + QByteArray::number(port));
}

QByteArray otherHostOf(const Request &request, quint16 port)
{
    const bool isLocalhost = hostOf(request, port).startsWith("localhost");
    return (isLocalhost ? "127.0.0.1:" : "localhost:") + QByteArray::number(port);
}

} // namespace

Fault Fault::redirectTo(int code, std::function<QByteArray(const Request &, quint16)> location)
{
    Fault fault;
    fault.m_replacement = [code, location = std::move(location)](const Request &request,
                                                                 quint16 port) {
        return Reply{
            .status = code, .headers = {{"Location", location(request, port)}}, .body = {}};
    };
    return fault;
}

Fault Fault::redirect(const QByteArray &location, int code)
{
    return redirectTo(code, [location](const Request &, quint16) { return location; });
}

Fault Fault::redirectLoop(int code)
{
    return redirectTo(code, [](const Request &request, quint16) { return request.target; });
}

Fault Fault::redirectFurther(int code)
{
    return redirectTo(code, [](const Request &request, quint16) {
        return QByteArray(request.target + "&further");
    });
}

Fault Fault::redirectToHttp(int code)
{
    return redirectTo(code, [](const Request &request, quint16 port) {
        return QByteArray("http://" + hostOf(request, port) + request.target);
    });
}

Fault Fault::redirectToOtherHost(int code)
{
    return redirectTo(code, [](const Request &request, quint16 port) {
        return QByteArray("https://" + otherHostOf(request, port) + request.target);
    });
}

Fault Fault::redirectToPath(const QByteArray &path, int code)
{
    return redirectTo(code, [path](const Request &request, quint16) {
        return QByteArray(path + request.target.mid(request.path.size()));
    });
}

} // namespace sandbox
