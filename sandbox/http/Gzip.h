// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace sandbox {

/// The bytes in the format of gzip (RFC 1952).
QByteArray gzipped(const QByteArray &bytes);

} // namespace sandbox
