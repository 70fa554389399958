// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Whether `data` can be handed to a property list parser that trusts its input: no longer than
/// 4 MiB, nested at most 64 deep, and, once every object is copied to each place that refers to
/// it, not above 32 MiB. Says nothing else about it being a property list.
[[nodiscard]] bool isBoundedPropertyList(const QByteArray &data);
