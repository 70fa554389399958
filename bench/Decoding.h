// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Runs in the process that measureDecoding starts: reads the body in a file in the way that the
/// first argument names, and prints the most memory that it had, in MiB.
void decode(const QStringList &arguments);
