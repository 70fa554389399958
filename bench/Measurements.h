// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

// Each prints one table: figures of the application beside those of its floor.

/// From exec to the first frame, and the memory that it took.
void measureStarts();
/// The work for one frame of each animation.
void measureFrames();
/// As many issues as fit a reply.
void measureDecoding();
/// A request over a connection that is there.
void measureRequests();
