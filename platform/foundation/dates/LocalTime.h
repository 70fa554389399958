// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// The device's time zone by the C library: that of TZ (the name of a zone or of a file, or a POSIX
/// rule such as "CET-1CEST,M3.5.0,M10.5.0/3"), or the system's. Each call follows changes of TZ and
/// of the system's zone, but not of the data of the zone that TZ names.
///
/// UTC and local times are seconds since 1970-01-01 00:00:00 on their own clock.
namespace LocalTime {

/// Nil beyond the years that fit an int.
[[nodiscard]] std::optional<qint64> fromUtc(qint64 utc);

/// The later of two times for an hour that occurs twice; nil for an hour that is skipped.
[[nodiscard]] std::optional<qint64> toUtc(qint64 local);

} // namespace LocalTime
