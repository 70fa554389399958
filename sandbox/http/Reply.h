// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace sandbox {

/// A header field: name and value.
using Header = std::pair<QByteArray, QByteArray>;

/// An HTTP reply before it is serialized.
struct Reply {
    int status = 200;
    /// In addition to those that every reply has (date, length, connection, protections).
    QList<Header> headers = {};
    QByteArray body = {};
};

} // namespace sandbox
