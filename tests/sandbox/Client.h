// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

/// The outcome of a request.
struct Answer {
    /// libcurl's code; 0 for a complete answer.
    int error = -1;
    long status = 0;
    QByteArray head = {};
    /// At most a mebibyte; a longer body ends the transfer with an error.
    QByteArray body = {};

    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(body).object(); }
    [[nodiscard]] QJsonArray list() const { return QJsonDocument::fromJson(body).array(); }
    [[nodiscard]] QString result() const { return json()[QStringLiteral("result")].toString(); }
    [[nodiscard]] bool isUser() const { return json().contains(QStringLiteral("userTavloID")); }
};

/// An HTTPS client that trusts one authority, and reuses its connection.
class Client {
public:
    Client(quint16 port, const QString &caFile);

    /// Sends the target and the optional header field `field` unchanged.
    Answer send(const QByteArray &method, const QByteArray &target, long timeout = 20'000,
                const QByteArray &field = {});
    Answer get(const QByteArray &target) { return send("GET", target); }
    Answer post(const QByteArray &target) { return send("POST", target); }

private:
    quint16 m_port;
    QByteArray m_caFile;
    std::unique_ptr<void, void (*)(void *)> m_handle;
};
