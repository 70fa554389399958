// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

/// A point in time, independent of calendars and time zones.
struct NSDate {
    /// Seconds since 2001-01-01 00:00:00 UTC; negative before it.
    double timeIntervalSinceReferenceDate = 0;

    bool operator==(const NSDate &) const = default;
};
