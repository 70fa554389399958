// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace sandbox {

/// The message with a one-time password, by RFC 5322, RFC 2045 and RFC 2047: ASCII only, lines of
/// at most 78 characters except that of the address, CRLF line ends. The name cannot affect other
/// fields than To; the address must be valid.
QByteArray resetMessage(const QString &name, const QString &address, const QString &password,
                        const QDateTime &date);

} // namespace sandbox
