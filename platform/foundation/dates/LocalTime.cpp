// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/dates/LocalTime.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr qint64 secondsPerDay = 24LL * 60 * 60;

/// Seconds by which local time is ahead of UTC.
std::optional<qint64> offsetAt(qint64 utc)
{
    const auto time = static_cast<time_t>(utc);
    struct tm fields = {};
    return localtime_r(&time, &fields) ? std::optional(static_cast<qint64>(fields.tm_gmtoff))
                                       : std::nullopt;
}

} // namespace

std::optional<qint64> LocalTime::fromUtc(qint64 utc)
{
    tzset(); // localtime_r does not follow changes of the zone
    const auto offset = offsetAt(utc);
    return offset ? std::optional(utc + *offset) : std::nullopt;
}

std::optional<qint64> LocalTime::toUtc(qint64 local)
{
    tzset();
    // No zone is a day from UTC, so these are the offsets before and after a nearby change.
    const auto before = offsetAt(local - secondsPerDay);
    const auto after = offsetAt(local + secondsPerDay);
    if (before == after) {
        return before ? std::optional(local - *before) : std::nullopt;
    }
    std::optional<qint64> latest;
    for (const auto offset : {before, after}) {
        if (offset && offsetAt(local - *offset) == offset) {
            latest = std::max(latest, std::optional(local - *offset));
        }
    }
    return latest;
}
