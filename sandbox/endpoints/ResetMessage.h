// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace sandbox {

/// The message that brings a one-time password, after RFC 5322, RFC 2045 and RFC 2047: ASCII only,
/// lines of at most 78 characters, that of the address apart, that end in CRLF. Whatever the name
/// holds becomes part of the To field and nothing else; the address must be a valid one.
QByteArray resetMessage(const QString &name, const QString &address, const QString &password,
                        const QDateTime &date);

} // namespace sandbox
