// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

/// Whether connecting to the D-Bus `address` comes to an end: false for a socket that accepts and
/// says nothing until `deadline`. The bus libraries would wait for it for half a minute or longer,
/// with whatever uses them.
[[nodiscard]] bool busAnswers(const QByteArray &address, QDeadlineTimer deadline);
