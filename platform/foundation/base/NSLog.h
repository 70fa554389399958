// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Writes `message` as one line to the system log (standard error, unless the desktop collects it).
/// Line breaks and other control characters are escaped, so that a message cannot forge a line.
void NSLog(const QString &message);
