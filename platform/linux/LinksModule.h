// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

/// The functions of the module behind Links. `url` is in UTF-8.
using LinkHasHandler = bool(const QByteArray &url);
using OpenLink = void(const QByteArray &url);
