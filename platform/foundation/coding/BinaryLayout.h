// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/PropertyList.h"

/// The layout of binary property lists, "bplist00", as CFBinaryPList.c of the platform's published
/// Core Foundation describes it: the signature, the objects, the table of their offsets, a trailer
/// of 32 bytes. An object begins with a marker: its type in the upper half of a byte, a size or a
/// simple value in the lower.
namespace BinaryLayout {

inline constexpr char signature[] = "bplist00";
inline constexpr quint64 trailerLength = 32;
/// In the lower half of a marker: the count follows as an integer.
inline constexpr int countFollows = 0xf;

[[nodiscard]] constexpr bool hasCount(PropertyList::Type type)
{
    using Type = PropertyList::Type;
    return type == Type::Data || type == Type::ASCII || type == Type::UTF16 || type == Type::Array
        || type == Type::Set || type == Type::Dictionary;
}

} // namespace BinaryLayout
