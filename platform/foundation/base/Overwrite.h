// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>

/// Overwrites the characters of a QString or QByteArray that held a secret, unless a copy shares
/// them.
template <typename Text>
void overwrite(Text &text)
{
    if (text.isDetached()) {
        explicit_bzero(text.data(), static_cast<size_t>(text.size()) * sizeof *text.data());
    }
}
