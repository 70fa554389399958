// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// Each prints one table: figures of the application beside those of its floor.

/// From exec to the first frame of the release: time, memory and instructions. Callgrind's
/// reports are left in the folder that an argument names.
void measureStarts(const QStringList &arguments);
/// The work for one frame of each animation.
void measureFrames(const QStringList &arguments);
/// As many issues as fit a reply.
void measureDecoding(const QStringList &arguments);
/// What the application does while nothing happens.
void measureIdle(const QStringList &arguments);
/// A request over a connection of its own.
void measureRequests(const QStringList &arguments);
