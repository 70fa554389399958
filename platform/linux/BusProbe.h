// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

/// Whether a client of the D-Bus `address` gets an answer: false for a bus that accepts a
/// connection and then does not answer the authentication or the first call until `deadline`. The
/// bus libraries would block their callers for half a minute or longer.
[[nodiscard]] bool busAnswers(const QByteArray &address, QDeadlineTimer deadline);
