// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/PressedColor.h"

namespace {

constexpr double darkening = 0.2;

UIColor darker(const UIColor::RGB &color, double alpha)
{
    return UIColor::colorWithRed(color.red - darkening, color.green - darkening,
                                 color.blue - darkening, alpha);
}

// The alpha of `gray` counts, not that of `rgb`.
UIColor darker(const UIColor::RGB &rgb, const UIColor::Gray &gray)
{
    const bool colorless = rgb.red + rgb.green + rgb.blue == 0;
    if (colorless && gray.white == 0) {
        return UIColor::colorWithWhite(gray.white + darkening, gray.alpha);
    }
    if (colorless) {
        return UIColor::colorWithWhite(gray.white - darkening, gray.alpha);
    }
    return darker(rgb, gray.alpha);
}

} // namespace

UIColor pressedColor(const UIColor &color)
{
    if (const auto rgb = color.getRed()) {
        return darker(*rgb, color.getWhite().value_or(UIColor::Gray{0, rgb->alpha}));
    }
    const std::vector<double> &c = color.components();
    if (c.size() == 4) {
        return darker({c[0], c[1], c[2], c[3]}, c[3]);
    }
    const auto hue = color.getHue();
    return hue ? UIColor::colorWithHue(hue->hue - darkening, hue->saturation - darkening,
                                       hue->brightness - darkening, hue->alpha)
               : UIColor();
}
