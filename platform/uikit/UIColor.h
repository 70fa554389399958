// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/UITraitCollection.h"

#include <QColor>
#include <QtQmlIntegration>

#include <functional>
#include <memory>
#include <vector>

/// A colour with its own components, unclamped, in the model that it was made in; or a dynamic
/// colour, which a provider makes from the traits. A default-constructed UIColor is no colour.
/// A QColor is made only when it is drawn.
class UIColor {
    Q_GADGET
    QML_VALUE_TYPE(uiColor)

public:
    using Provider = std::function<UIColor(const UITraitCollection &)>;

    UIColor() = default;

    [[nodiscard]] static UIColor colorWithWhite(double white, double alpha);
    [[nodiscard]] static UIColor colorWithRed(double red, double green, double blue, double alpha);
    /// A dynamic colour; `provider` is called whenever the colour is resolved.
    [[nodiscard]] static UIColor initWithDynamicProvider(Provider provider);

    [[nodiscard]] static UIColor blackColor();
    [[nodiscard]] static UIColor whiteColor();
    [[nodiscard]] static UIColor grayColor();
    [[nodiscard]] static UIColor lightGrayColor();

    // The platform's public values for light and dark.
    [[nodiscard]] static UIColor systemBlueColor();
    [[nodiscard]] static UIColor systemTealColor();
    [[nodiscard]] static UIColor labelColor();
    [[nodiscard]] static UIColor secondaryLabelColor();
    [[nodiscard]] static UIColor tertiaryLabelColor();
    [[nodiscard]] static UIColor separatorColor();
    [[nodiscard]] static UIColor systemGroupedBackgroundColor();
    [[nodiscard]] static UIColor secondarySystemGroupedBackgroundColor();

    /// True for no colour at all, which draws nothing.
    Q_INVOKABLE [[nodiscard]] bool isNil() const;

    /// The colour for these traits, never dynamic.
    [[nodiscard]] UIColor resolvedColorWithTraitCollection(const UITraitCollection &traits) const;

    /// White and alpha, or red, green, blue and alpha, as given; empty for no colour and for
    /// a dynamic one.
    [[nodiscard]] const std::vector<double> &components() const { return m_components; }

    /// What is drawn in the dark or the light style: components clamped to 0...1, transparent for
    /// no colour.
    Q_INVOKABLE [[nodiscard]] QColor drawn(bool dark) const;

    /// Equal components, or the same provider.
    bool operator==(const UIColor &) const = default;

private:
    std::vector<double> m_components;
    std::shared_ptr<const Provider> m_provider;
};
