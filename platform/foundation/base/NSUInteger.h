// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

/// The platform's unsigned integer of the machine's word size, the type of status codes.
using NSUInteger = unsigned long;
