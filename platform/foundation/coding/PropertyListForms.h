// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/PropertyList.h"

/// The two forms in which property lists are stored; see PropertyList::fromData.
namespace PropertyListForms {

constexpr int maximumDepth = 64;

[[nodiscard]] bool isBinary(const QByteArray &data);
[[nodiscard]] std::optional<PropertyList> readBinary(const QByteArray &data);
[[nodiscard]] QByteArray writeBinary(const PropertyList &list);

/// A list that declares entities of its own is none.
[[nodiscard]] std::optional<PropertyList> readXML(const QByteArray &data);

} // namespace PropertyListForms
