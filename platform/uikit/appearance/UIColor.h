// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/UITraitCollection.h"

#include <QColor>
#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// A colour with its own components, unclamped, in the model that it was made in; or a dynamic
/// colour, which a provider makes from the traits. A default-constructed UIColor is no colour.
/// A QColor is made only when it is drawn.
class UIColor {
    Q_GADGET
    QML_VALUE_TYPE(uiColor)

public:
    using Provider = std::function<UIColor(const UITraitCollection &)>;
    struct RGB {
        double red, green, blue, alpha;
    };
    struct HSB {
        double hue, saturation, brightness, alpha;
    };
    struct Gray {
        double white, alpha;
    };

    UIColor() = default;

    [[nodiscard]] static UIColor colorWithWhite(double white, double alpha);
    [[nodiscard]] static UIColor colorWithRed(double red, double green, double blue, double alpha);
    /// Hue and saturation outside 0...1 count as the nearer end.
    [[nodiscard]] static UIColor colorWithHue(double hue, double saturation, double brightness,
                                              double alpha);
    /// A colour of a space that is known by its components alone: white and alpha are drawn when
    /// there are two, red, green, blue and alpha when there are four, and nothing otherwise.
    [[nodiscard]] static UIColor colorWithCGColor(std::vector<double> components);
    /// A dynamic colour; `provider` is called whenever the colour is resolved.
    [[nodiscard]] static UIColor initWithDynamicProvider(Provider provider);

    [[nodiscard]] static UIColor blackColor();
    [[nodiscard]] static UIColor whiteColor();
    [[nodiscard]] static UIColor grayColor();
    [[nodiscard]] static UIColor lightGrayColor();
    [[nodiscard]] static UIColor redColor();
    [[nodiscard]] static UIColor clearColor();

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

    // The colour converted to a model; a dynamic colour is resolved first, in the application's
    // present style. Nil for no colour. A colour that was made of components converts only to a
    // hue, and only if it has two components.
    [[nodiscard]] std::optional<RGB> getRed() const;
    [[nodiscard]] std::optional<Gray> getWhite() const;
    [[nodiscard]] std::optional<HSB> getHue() const;

    /// White and alpha, or red, green, blue and alpha, as given; empty for no colour and for
    /// a dynamic one.
    [[nodiscard]] const std::vector<double> &components() const { return m_components; }

    /// The colour in the dark or the light style for Qt: components clamped to 0...1, transparent
    /// for no colour.
    Q_INVOKABLE [[nodiscard]] QColor toQColor(bool dark) const;

    /// Equal components, or the same provider.
    bool operator==(const UIColor &) const = default;

private:
    [[nodiscard]] UIColor resolvedNow() const;

    std::vector<double> m_components;
    bool m_componentsAlone = false;
    std::shared_ptr<const Provider> m_provider;
};
