// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The call of org.freedesktop.DBus.Hello, which every client of a bus must send first, in the
/// message format of the D-Bus protocol.
[[nodiscard]] QByteArray helloCall();
