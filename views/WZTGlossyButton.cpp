// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/WZTGlossyButton.h"

#include "views/PressedColor.h"

namespace {

struct Stop {
    double location, white, alpha;
};

// Two stops at the same location give the shine a hard edge in the middle.
constexpr Stop shine[] = {
    {0.0, 1.0, 0.4}, {0.5, 1.0, 0.2}, {0.5, 0.75, 0.2}, {0.8, 0.4, 0.2}, {1.0, 1.0, 0.4},
};

} // namespace

WZTGlossyButton::WZTGlossyButton(const QRectF &frame, const UIColor &color)
{
    setLayer({.bounds = QRectF(QPointF(), frame.size())});
    setButtonColor(color);
    makeButtonShiny(*this, color);
    addTarget(this, &WZTGlossyButton::wasPressed, UIControlEvent::TouchDragEnter);
    addTarget(this, &WZTGlossyButton::wasPressed, UIControlEvent::TouchDown);
    addTarget(this, &WZTGlossyButton::endedPress, UIControlEvent::TouchUpInside);
    addTarget(this, &WZTGlossyButton::endedPress, UIControlEvent::TouchDragExit);
}

WZTGlossyButton::~WZTGlossyButton() = default;

void WZTGlossyButton::makeButtonShiny(WZTGlossyButton &button, const UIColor &color)
{
    CALayer layer = button.layer();
    layer.cornerRadius = 8;
    layer.masksToBounds = true;
    layer.borderWidth = 2;
    layer.borderColor = UIColor::colorWithWhite(0.4, 0.2);
    CAGradientLayer gradient{.frame = layer.bounds};
    for (const Stop &stop : shine) {
        gradient.colors.push_back(UIColor::colorWithWhite(stop.white, stop.alpha));
        gradient.locations.push_back(stop.location);
    }
    layer.addSublayer(std::move(gradient));
    button.setLayer(layer);
    button.setBackgroundColor(color);
}

void WZTGlossyButton::setButtonColor(const UIColor &color)
{
    m_buttonColor = color;
    setBackgroundColor(m_buttonColor);
}

void WZTGlossyButton::wasPressed()
{
    setBackgroundColor(pressedColor(m_buttonColor));
}

void WZTGlossyButton::endedPress()
{
    setBackgroundColor(m_buttonColor);
}
