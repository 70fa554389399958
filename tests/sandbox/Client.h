// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

#include <memory>

/// What came of a request.
struct Answer {
    /// libcurl's code, 0 when a whole answer came.
    int error = -1;
    long status = 0;
    QByteArray head = {};
    /// The first mebibyte of it; what is more ends the transfer with an error.
    QByteArray body = {};

    [[nodiscard]] QJsonObject json() const;
    [[nodiscard]] QJsonArray list() const;
    [[nodiscard]] QString result() const;
    [[nodiscard]] bool isUser() const;
};

/// An HTTPS client that trusts one authority, and keeps its connection from call to call.
class Client {
public:
    Client(quint16 port, const QString &caFile);

    /// The target is sent byte for byte, and so is one more header field if there is one.
    Answer send(const QByteArray &method, const QByteArray &target, long timeout = 20'000,
                const QByteArray &field = {});
    Answer get(const QByteArray &target) { return send("GET", target); }
    Answer post(const QByteArray &target) { return send("POST", target); }

private:
    quint16 m_port;
    QByteArray m_caFile;
    std::unique_ptr<void, void (*)(void *)> m_handle;
};
