// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace sandbox {

/// A header field: name and value.
using Header = std::pair<QByteArray, QByteArray>;

/// An HTTP answer before it is put on the wire.
struct Reply {
    int status = 200;
    /// Beyond those that every answer has (length, type, connection, protections).
    QList<Header> headers = {};
    QByteArray body = {};
};

} // namespace sandbox
