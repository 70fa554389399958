// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// From now on every task of the shared session completes at once with `reply`. A program that has
/// this has no other session: the linker takes this one's NSURLSession for the real one.
void completeEveryTaskWith(const QByteArray &reply);
