// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/foundation/dates/LocalTime.h"

#include <algorithm>
#include <ctime>

namespace {

constexpr qint64 day = 24LL * 60 * 60;

/// How far the clock is ahead of UTC.
std::optional<qint64> offsetAt(qint64 moment)
{
    const auto time = time_t(moment);
    struct tm fields = {};
    return localtime_r(&time, &fields) ? std::optional(static_cast<qint64>(fields.tm_gmtoff))
                                       : std::nullopt;
}

} // namespace

std::optional<qint64> LocalTime::clockAt(qint64 moment)
{
    tzset(); // looks whether the zone has changed, which localtime_r does not
    const auto offset = offsetAt(moment);
    return offset ? std::optional(moment + *offset) : std::nullopt;
}

std::optional<qint64> LocalTime::momentOf(qint64 clock)
{
    tzset();
    // No clock is a day from UTC, so these are the offsets before and after any change nearby.
    const auto before = offsetAt(clock - day);
    const auto after = offsetAt(clock + day);
    if (before == after) {
        return before ? std::optional(clock - *before) : std::nullopt;
    }
    std::optional<qint64> latest;
    for (const auto offset : {before, after}) {
        if (offset && offsetAt(clock - *offset) == offset) {
            latest = std::max(latest, std::optional(clock - *offset));
        }
    }
    return latest;
}
