// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/UIColor.h"

#include "platform/uikit/appearance/Traits.h"

#include <algorithm>
#include <cmath>

namespace {

struct Shade {
    double red, green, blue, alpha;
};

// A colour of the platform: its public values, in 0...255 and alpha, for light and for dark.
UIColor systemColor(const Shade &light, const Shade &dark)
{
    return UIColor::initWithDynamicProvider([light, dark](const UITraitCollection &traits) {
        const Shade &shade = traits.userInterfaceStyle == UIUserInterfaceStyle::Dark ? dark : light;
        return UIColor::colorWithRed(shade.red / 255, shade.green / 255, shade.blue / 255,
                                     shade.alpha);
    });
}

float drawable(double component)
{
    return static_cast<float>(std::clamp(component, 0.0, 1.0));
}

} // namespace

UIColor UIColor::colorWithWhite(double white, double alpha)
{
    UIColor color;
    color.m_components = {white, alpha};
    return color;
}

UIColor UIColor::colorWithRed(double red, double green, double blue, double alpha)
{
    UIColor color;
    color.m_components = {red, green, blue, alpha};
    return color;
}

UIColor UIColor::colorWithHue(double hue, double saturation, double brightness, double alpha)
{
    const double turn = std::clamp(hue, 0.0, 1.0) * 6;
    const double grey = 1 - std::clamp(saturation, 0.0, 1.0);
    // The part of a channel, by the distance of its own hue on the circle of six.
    const auto channel = [&](double own) {
        const double away = std::abs(std::remainder(turn - own, 6));
        return brightness * (grey + (1 - grey) * std::clamp(2 - away, 0.0, 1.0));
    };
    return colorWithRed(channel(0), channel(2), channel(4), alpha);
}

UIColor UIColor::colorWithCGColor(std::vector<double> components)
{
    UIColor color;
    color.m_components = std::move(components);
    color.m_componentsAlone = true;
    return color;
}

UIColor UIColor::initWithDynamicProvider(Provider provider)
{
    UIColor color;
    color.m_provider = std::make_shared<const Provider>(std::move(provider));
    return color;
}

UIColor UIColor::blackColor()
{
    return colorWithWhite(0, 1);
}

UIColor UIColor::whiteColor()
{
    return colorWithWhite(1, 1);
}

UIColor UIColor::grayColor()
{
    return colorWithWhite(0.5, 1);
}

UIColor UIColor::lightGrayColor()
{
    return colorWithWhite(2.0 / 3, 1);
}

UIColor UIColor::redColor()
{
    return colorWithRed(1, 0, 0, 1);
}

UIColor UIColor::clearColor()
{
    return colorWithWhite(0, 0);
}

UIColor UIColor::systemBlueColor()
{
    return systemColor({0, 122, 255, 1}, {10, 132, 255, 1});
}

UIColor UIColor::systemTealColor()
{
    return systemColor({48, 176, 199, 1}, {64, 200, 224, 1});
}

UIColor UIColor::labelColor()
{
    return systemColor({0, 0, 0, 1}, {255, 255, 255, 1});
}

UIColor UIColor::secondaryLabelColor()
{
    return systemColor({60, 60, 67, 0.6}, {235, 235, 245, 0.6});
}

UIColor UIColor::tertiaryLabelColor()
{
    return systemColor({60, 60, 67, 0.3}, {235, 235, 245, 0.3});
}

UIColor UIColor::separatorColor()
{
    return systemColor({60, 60, 67, 0.29}, {84, 84, 88, 0.6});
}

UIColor UIColor::systemGroupedBackgroundColor()
{
    return systemColor({242, 242, 247, 1}, {0, 0, 0, 1});
}

UIColor UIColor::secondarySystemGroupedBackgroundColor()
{
    return systemColor({255, 255, 255, 1}, {28, 28, 30, 1});
}

bool UIColor::isNil() const
{
    return m_components.empty() && !m_provider;
}

UIColor UIColor::resolvedColorWithTraitCollection(const UITraitCollection &traits) const
{
    return m_provider ? (*m_provider)(traits).resolvedColorWithTraitCollection(traits) : *this;
}

UIColor UIColor::resolvedNow() const
{
    return resolvedColorWithTraitCollection({Traits::current().userInterfaceStyle()});
}

std::optional<UIColor::RGB> UIColor::getRed() const
{
    const UIColor color = resolvedNow();
    const std::vector<double> &c = color.m_components;
    if (c.empty() || color.m_componentsAlone) {
        return std::nullopt;
    }
    return c.size() == 2 ? RGB{c[0], c[0], c[0], c[1]} : RGB{c[0], c[1], c[2], c[3]};
}

std::optional<UIColor::Gray> UIColor::getWhite() const
{
    const UIColor color = resolvedNow();
    const auto rgb = color.getRed();
    if (!rgb) {
        return std::nullopt;
    }
    if (color.m_components.size() == 2) {
        return Gray{color.m_components[0], color.m_components[1]};
    }
    return Gray{0.299 * rgb->red + 0.587 * rgb->green + 0.114 * rgb->blue, rgb->alpha};
}

std::optional<UIColor::HSB> UIColor::getHue() const
{
    const UIColor color = resolvedNow();
    if (color.m_components.size() == 2) {
        return HSB{0, 0, color.m_components[0], color.m_components[1]};
    }
    const auto rgb = color.getRed();
    if (!rgb) {
        return std::nullopt;
    }
    const double most = std::max({rgb->red, rgb->green, rgb->blue});
    const double range = most - std::min({rgb->red, rgb->green, rgb->blue});
    if (range <= 0) {
        return HSB{0, 0, most, rgb->alpha};
    }
    double sixth = 0;
    if (most == rgb->red) {
        sixth = (rgb->green - rgb->blue) / range;
    } else if (most == rgb->green) {
        sixth = 2 + (rgb->blue - rgb->red) / range;
    } else {
        sixth = 4 + (rgb->red - rgb->green) / range;
    }
    return HSB{(sixth < 0 ? sixth + 6 : sixth) / 6, most > 0 ? range / most : 0, most, rgb->alpha};
}

QColor UIColor::toQColor(bool dark) const
{
    const auto style = dark ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light;
    const std::vector<double> c = resolvedColorWithTraitCollection({style}).components();
    if (c.size() == 2) {
        return QColor::fromRgbF(drawable(c[0]), drawable(c[0]), drawable(c[0]), drawable(c[1]));
    }
    if (c.size() == 4) {
        return QColor::fromRgbF(drawable(c[0]), drawable(c[1]), drawable(c[2]), drawable(c[3]));
    }
    return Qt::transparent;
}
