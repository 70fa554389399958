// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/coding/PropertyList.h"

/// The binary and the XML format of property lists; see PropertyList.
namespace PropertyListFormats {

constexpr int maximumDepth = 64;

[[nodiscard]] bool isBinary(const QByteArray &data);
[[nodiscard]] std::optional<PropertyList> readBinary(const QByteArray &data);
[[nodiscard]] QByteArray writeBinary(const PropertyList &list);

/// By the public DTD PropertyList-1.0. Nil for a list that declares entities.
[[nodiscard]] std::optional<PropertyList> readXML(const QByteArray &data);

} // namespace PropertyListFormats
