// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/Durations.h"

#include "platform/uikit/appearance/Traits.h"

#include <algorithm>

Durations::Durations()
{
    connect(&Traits::current(), &Traits::changed, this, &Durations::changed);
}

int Durations::refresh() const
{
    return Traits::current().reduceMotion() ? 0 : 250;
}

int Durations::spoke() const
{
    return Traits::current().reduceMotion() ? 400 : 100;
}

int Durations::restOfPage(double part) const
{
    return Traits::current().reduceMotion() ? 1 : std::max(120, static_cast<int>(page * part));
}
