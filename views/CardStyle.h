// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

class UIView;

/// Makes `view` a card: the card's background, clipped to corners of `cornerRadius` points, which
/// are continuous curves from system version 13 on.
void styleCard(UIView &view, double cornerRadius);
