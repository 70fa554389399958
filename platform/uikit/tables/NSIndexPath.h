// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// A row of a section of a table, both counted from 0.
struct NSIndexPath {
    int section = 0;
    int row = 0;

    bool operator==(const NSIndexPath &) const = default;
};
