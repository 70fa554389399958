// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// The device's time zone, as the C library has it: by TZ (the name of a zone or of a file, or a
/// rule such as "CET-1CEST,M3.5.0,M10.5.0/3") or else the system's. A change of TZ or of the
/// system's zone counts from the next call on; one of the data of the zone that TZ names does not.
///
/// Moments are seconds from 1970-01-01 UTC, clocks are seconds from 1970-01-01 on the wall.
namespace LocalTime {

/// What the clock shows at `moment`; nil beyond the years that fit an int.
[[nodiscard]] std::optional<qint64> clockAt(qint64 moment);

/// When the clock shows `clock`: the later of two moments, nil for none.
[[nodiscard]] std::optional<qint64> momentOf(qint64 clock);

} // namespace LocalTime
