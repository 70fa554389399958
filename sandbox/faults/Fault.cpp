// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "sandbox/faults/Fault.h"

#include "sandbox/http/Gzip.h"
#include "sandbox/http/HttpMessage.h"
#include "sandbox/http/Request.h"

#include <algorithm>

namespace sandbox {

namespace {

constexpr std::chrono::milliseconds surplusPause{100};

} // namespace

Fault Fault::delay(std::chrono::milliseconds time)
{
    return Fault().after(time);
}

Fault Fault::silence()
{
    return raw({}).ending(Transmission::Ending::Silence);
}

Fault Fault::close()
{
    return raw({});
}

Fault Fault::reset()
{
    Fault fault = Fault().ending(Transmission::Ending::Reset);
    fault.m_isHalved = true;
    return fault;
}

Fault Fault::cut(qint64 size)
{
    Fault fault = Fault().ending(Transmission::Ending::Cut);
    fault.m_cut = size;
    return fault;
}

Fault Fault::wrongLength(qint64 difference)
{
    Fault fault = Fault().ending(Transmission::Ending::Close);
    fault.m_lengthDifference = difference;
    return fault;
}

Fault Fault::drip(qint64 pieceSize, std::chrono::milliseconds pause)
{
    Fault fault;
    fault.m_delivery.pieceSize = pieceSize;
    fault.m_delivery.pause = pause;
    return fault;
}

Fault Fault::gzip(qint64 missing)
{
    return Fault().compressed(missing);
}

Fault Fault::surplus(const QByteArray &bytes)
{
    Fault fault;
    fault.m_surplus = bytes;
    return fault;
}

Fault Fault::status(int code)
{
    Fault fault;
    fault.m_status = code;
    return fault;
}

Fault Fault::json(const QByteArray &body, int code)
{
    Fault fault;
    fault.m_replacement = [body, code](const Request &, quint16) {
        return Reply{
            .status = code, .headers = {{"Content-Type", "application/json"}}, .body = body};
    };
    return fault;
}

Fault Fault::raw(const QByteArray &bytes)
{
    Fault fault = json(bytes).ending(Transmission::Ending::Close);
    fault.m_isRaw = true;
    return fault;
}

Fault Fault::endless()
{
    Fault fault = json({}).withoutLength();
    fault.m_delivery.isEndless = true;
    return fault;
}

Fault Fault::keyUpdates(int count)
{
    Fault fault;
    fault.m_delivery.keyUpdates = count;
    return fault;
}

Fault Fault::after(std::chrono::milliseconds time) const
{
    Fault fault = *this;
    fault.m_delivery.delay = time;
    return fault;
}

Fault Fault::withHeader(const QByteArray &name, const QByteArray &value) const
{
    Fault fault = *this;
    fault.m_headers.append({name, value});
    return fault;
}

Fault Fault::withoutLength() const
{
    Fault fault = ending(Transmission::Ending::Close);
    fault.m_hasLength = false;
    return fault;
}

Fault Fault::compressed(qint64 missing) const
{
    Fault fault = withHeader("Content-Encoding", "gzip");
    fault.m_missing = missing;
    return fault;
}

Fault Fault::ending(Transmission::Ending ending) const
{
    Fault fault = *this;
    fault.m_ending = ending;
    return fault;
}

Transmission Fault::transmission(const Request &request, const Reply &real, quint16 port) const
{
    const Reply reply = m_replacement ? m_replacement(request, port) : real;
    Transmission transmission = m_delivery;
    transmission.ending = m_ending.value_or(transmissionOf(request, reply).ending);
    const bool keepsAlive = transmission.ending == Transmission::Ending::KeepOpen;
    const QByteArray answer = m_isRaw ? reply.body : message(reply, keepsAlive);
    transmission.bytes = answer + m_surplus;
    if (!m_surplus.isEmpty()) {
        // A client that found them at once would give up the connection.
        transmission.pieceSize = answer.size();
        transmission.pause = surplusPause;
    }
    return transmission;
}

/// The head and the body with the changes of this fault.
QByteArray Fault::message(Reply reply, bool keepsAlive) const
{
    reply.status = m_status.value_or(reply.status);
    reply.headers += m_headers;
    if (m_missing) {
        reply.body = gzipped(reply.body);
        reply.body.chop(*m_missing);
    }
    std::optional<qint64> length;
    if (m_hasLength) {
        length = std::max(qint64{0}, reply.body.size() + m_lengthDifference);
    }
    const qsizetype sent = m_isHalved ? reply.body.size() / 2 : reply.body.size();
    const QByteArray whole = headOf(reply, keepsAlive, length) + reply.body.left(sent);
    return whole.left(m_cut.value_or(whole.size()));
}

} // namespace sandbox
