// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/CAGradientLayer.h"

#include <QObject>

/// The look of a view beside its background. Lengths in points.
struct CALayer {
    Q_GADGET
    QML_VALUE_TYPE(caLayer)
    Q_PROPERTY(double cornerRadius MEMBER cornerRadius FINAL)
    Q_PROPERTY(double borderWidth MEMBER borderWidth FINAL)
    Q_PROPERTY(UIColor borderColor MEMBER borderColor FINAL)
    Q_PROPERTY(bool masksToBounds MEMBER masksToBounds FINAL)
    Q_PROPERTY(QRectF bounds MEMBER bounds FINAL)

public:
    enum class CornerCurve { Circular, Continuous };
    Q_ENUM(CornerCurve)

    double cornerRadius = 0;
    double borderWidth = 0;
    UIColor borderColor = {};
    bool masksToBounds = false;
    /// Not drawn: Qt's rounded rectangle has circular corners only.
    CornerCurve cornerCurve = CornerCurve::Circular;
    /// The size that the view was made with. The drawing decides its place and its size.
    QRectF bounds = {};
    /// Drawn over the view, in this order, each in its frame whatever the view's size becomes.
    std::vector<CAGradientLayer> sublayers = {};

    void addSublayer(CAGradientLayer layer) { sublayers.push_back(std::move(layer)); }

    bool operator==(const CALayer &) const = default;
};
