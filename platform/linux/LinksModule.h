// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

/// The functions of the module behind Links. `url` is in UTF-8.
using LinkHasHandler = auto(const QByteArray &url) -> bool;
using OpenLink = auto(const QByteArray &url) -> void;
