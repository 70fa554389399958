// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Runs in the process that measureIdle starts: brings the application to the place that is the
/// argument, says so in a line, and stays there until it is ended.
void rest(const QStringList &arguments);
