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

/// A fault or a variation of the answer to one request. Made by one of the static functions, and
/// optionally modified:
///     Fault::json("{\"result\":\"Incorrect\"}").after(200ms)
///
/// Faults that send the real answer (delay, reset, cut, wrongLength, drip, gzip, surplus,
/// keyUpdates, status) run the endpoint first. All others replace the answer, and leave accounts
/// and issues unchanged.
class Fault {
public:
    /// The real answer after a delay.
    static Fault delay(std::chrono::milliseconds time);
    /// No answer; the connection stays open until the client closes it.
    static Fault silence();
    /// No answer; the connection is closed properly.
    static Fault close();
    /// The head and the first half of the body of the real answer, then a TCP reset.
    static Fault reset();
    /// The first `size` bytes of the real answer with its head; then TCP is closed without TLS's
    /// close_notify.
    static Fault cut(qint64 size);
    /// The real answer with a Content-Length that is wrong by `difference`, but not negative; then
    /// the connection is closed.
    static Fault wrongLength(qint64 difference);
    /// The real answer in pieces of that size, with a pause between them.
    static Fault drip(qint64 pieceSize, std::chrono::milliseconds pause);
    /// The real answer compressed, without its last `missing` bytes, and with the matching
    /// Content-Length.
    static Fault gzip(qint64 missing = 0);
    /// The real answer, and after a pause these surplus bytes.
    static Fault surplus(const QByteArray &bytes);
    /// The real answer with another HTTP status (200 to 999).
    static Fault status(int code);
    /// An answer with this body of application/json and this HTTP status.
    static Fault json(const QByteArray &body, int code = 200);
    /// These bytes only; then the connection is closed.
    static Fault raw(const QByteArray &bytes);
    /// A head without a length, and an endless body of blanks.
    static Fault endless();
    /// TLS key updates, then the real answer; then TCP is closed.
    static Fault keyUpdates(int count);
    /// A redirect to this Location, sent unchanged.
    static Fault redirect(const QByteArray &location, int code = 302);
    /// A redirect to the request's own target, which makes a loop.
    static Fault redirectLoop(int code = 302);
    /// A redirect to the request's target with a suffix, so to another one each time.
    static Fault redirectFurther(int code = 302);
    /// A redirect to the same target over plain http.
    static Fault redirectToHttp(int code = 302);
    /// A redirect to the same target under this service's other name: from "localhost" to
    /// "127.0.0.1", from any other to "localhost". The service answers there too.
    static Fault redirectToOtherHost(int code = 302);
    /// A redirect to another path of the same host, with the request's query.
    static Fault redirectToPath(const QByteArray &path, int code = 302);

    /// The same after a delay.
    [[nodiscard]] Fault after(std::chrono::milliseconds time) const;
    /// The same with an additional header field.
    [[nodiscard]] Fault withHeader(const QByteArray &name, const QByteArray &value) const;
    /// The same without a Content-Length: the end of the connection ends the body.
    [[nodiscard]] Fault withoutLength() const;
    /// The same compressed, without its last `missing` bytes.
    [[nodiscard]] Fault compressed(qint64 missing = 0) const;
    /// The same with this ending of the connection.
    [[nodiscard]] Fault ending(Transmission::Ending ending) const;

    /// Whether the endpoint has to run.
    [[nodiscard]] bool sendsRealAnswer() const { return !m_replacement; }
    /// The bytes and their delivery. `real`: the endpoint's reply, ignored unless
    /// sendsRealAnswer(). `port`: the service's own.
    [[nodiscard]] Transmission transmission(const Request &request, const Reply &real,
                                            quint16 port) const;

private:
    using Replacement = std::function<Reply(const Request &, quint16 port)>;
    [[nodiscard]] QByteArray message(Reply reply, bool keepsAlive) const;
    static Fault redirectTo(int code, std::function<QByteArray(const Request &, quint16)> location);

    /// Null: the real answer is sent.
    Replacement m_replacement;
    std::optional<int> m_status;
    QList<Header> m_headers;
    qint64 m_lengthDifference = 0;
    /// Bytes missing at the end of the compressed body. Nil: the body is not compressed.
    std::optional<qint64> m_missing;
    std::optional<qint64> m_cut;
    QByteArray m_surplus;
    bool m_hasLength = true;
    bool m_isRaw = false;
    bool m_isHalved = false;
    /// All members but bytes and ending.
    Transmission m_delivery;
    /// Nil: the ending that the client requested.
    std::optional<Transmission::Ending> m_ending;
};

} // namespace sandbox
