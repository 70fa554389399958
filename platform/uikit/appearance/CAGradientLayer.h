// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UIColor.h"

#include <QRectF>

/// Colours that run from top to bottom over a part of the layer that it is in.
struct CAGradientLayer {
    /// In points, from the top left corner of the layer around it.
    QRectF frame = {};
    /// The same in every style.
    std::vector<UIColor> colors = {};
    /// Where each colour stands, ascending from 0, the top, to 1. Two in one place are an edge.
    std::vector<double> locations = {};

    bool operator==(const CAGradientLayer &) const = default;
};
