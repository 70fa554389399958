// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

/// One light haptic tap, the answer to a button of a screen and to a tab.
void tapHaptically();
