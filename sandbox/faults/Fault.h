// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/http/Reply.h"
#include "sandbox/http/Transmission.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <optional>

namespace sandbox {

struct Request;

/// What goes wrong, or merely differs, in the answer to one request. Made by one of the functions
/// below, and then, if wanted, delayed, given headers, or ended otherwise:
///     Fault::json("{\"result\":\"Incorrect\"}").after(200ms)
///
/// The faults that send the real answer (delay, reset, cut, wrongLength, drip, gzip, surplus,
/// keyUpdates, status without a body) let the endpoint do its work first; with all others accounts
/// and issues are left as they are.
class Fault {
public:
    /// The real answer, so much later.
    static Fault delay(std::chrono::milliseconds time);
    /// The request is read and never answered; the connection stays open until the client goes.
    static Fault silence();
    /// The connection is closed in good order without a byte of an answer.
    static Fault close();
    /// Headers and the first half of the real answer's body, then a TCP reset.
    static Fault reset();
    /// The first so many bytes of the real answer, its head among them; then TCP is closed without
    /// TLS's close_notify.
    static Fault cut(qint64 size);
    /// The real answer under a Content-Length that is off by so many bytes (never below 0); then
    /// the connection is closed. With 0 the length is right.
    static Fault wrongLength(qint64 difference);
    /// The real answer in pieces of so many bytes, with a pause between them.
    static Fault drip(qint64 pieceSize, std::chrono::milliseconds pause);
    /// The real answer compressed, with so many bytes missing at its end, under the length that it
    /// then has.
    static Fault gzip(qint64 missing = 0);
    /// The real answer, and a moment later these bytes, which nobody asked for.
    static Fault surplus(const QByteArray &bytes);
    /// The real answer's body under another HTTP status (200 to 999).
    static Fault status(int code);
    /// This body, as application/json, under this HTTP status.
    static Fault json(const QByteArray &body, int code = 200);
    /// These bytes and nothing else, then the connection is closed.
    static Fault raw(const QByteArray &bytes);
    /// HTTP headers without a length and a body of blanks that never ends.
    static Fault endless();
    /// The real answer after so many TLS key updates; then TCP is closed.
    static Fault keyUpdates(int count);
    /// A redirect to this Location, sent as it stands.
    static Fault redirect(const QByteArray &location, int code = 302);
    /// A redirect to the request's own target: a loop for as many requests as it is staged for.
    static Fault redirectLoop(int code = 302);
    /// A redirect to the request's own target, made longer: another one each time.
    static Fault redirectFurther(int code = 302);
    /// A redirect to the same target over plain http.
    static Fault redirectToHttp(int code = 302);
    /// A redirect to the same target of this service under its other name: from "localhost" to
    /// "127.0.0.1", from any other to "localhost". It would be answered if it were followed.
    static Fault redirectToOtherHost(int code = 302);
    /// A redirect to another path of the same host, with the request's query.
    static Fault redirectToPath(const QByteArray &path, int code = 302);

    /// The same, so much later.
    [[nodiscard]] Fault after(std::chrono::milliseconds time) const;
    /// The same with one more header field (a Content-Encoding, a Retry-After).
    [[nodiscard]] Fault withHeader(const QByteArray &name, const QByteArray &value) const;
    /// The same, without a Content-Length field: the end of the connection ends the body.
    [[nodiscard]] Fault withoutLength() const;
    /// The same compressed, with so many bytes missing at its end.
    [[nodiscard]] Fault compressed(qint64 missing = 0) const;
    /// The same, with the connection ended in this way after the last byte.
    [[nodiscard]] Fault ending(Transmission::Ending ending) const;

    /// Whether the endpoint does its work.
    [[nodiscard]] bool sendsRealAnswer() const { return !m_replacement; }
    /// The bytes to send and how: from the real answer if sendsRealAnswer(), which is otherwise
    /// not looked at. The port is the service's own.
    [[nodiscard]] Transmission transmission(const Request &request, const Reply &real,
                                            quint16 port) const;

private:
    using Replacement = std::function<Reply(const Request &, quint16 port)>;
    static Fault redirectTo(int code, std::function<QByteArray(const Request &, quint16)> location);

    /// Absent: the real answer is sent.
    Replacement m_replacement;
    std::optional<int> m_status;
    QList<Header> m_headers;
    qint64 m_lengthDifference = 0;
    /// Missing at the end of the compressed body. Absent: it is not compressed.
    std::optional<qint64> m_missing;
    std::optional<qint64> m_cut;
    QByteArray m_surplus;
    bool m_hasLength = true;
    bool m_isRaw = false;
    bool m_isHalved = false;
    /// Delay, pieces, endlessness; its bytes and ending are not looked at.
    Transmission m_delivery;
    /// Absent: as the client wants it.
    std::optional<Transmission::Ending> m_ending;
};

} // namespace sandbox
