// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/Theme.h"

#include "platform/uikit/appearance/Traits.h"
#include "platform/uikit/appearance/UIColor.h"
#include "platform/uikit/appearance/UIFont.h"

namespace {

template <typename T>
T inStyle(const T &light, const T &dark)
{
    return Traits::current().isDark() ? dark : light;
}

QColor inStyle(const UIColor &color)
{
    return color.toQColor(Traits::current().isDark());
}

QFont inScale(UIFontTextStyle style)
{
    return UIFont::preferredFontForTextStyle(style).toQFont(Traits::current().textScale());
}

} // namespace

Theme::Theme()
{
    connect(&Traits::current(), &Traits::changed, this, &Theme::changed);
}

QColor Theme::labelColor() const
{
    return inStyle(UIColor::labelColor());
}

QColor Theme::secondaryLabelColor() const
{
    return inStyle(QColor(60, 60, 67, 199), QColor(235, 235, 245, 153));
}

QColor Theme::separatorColor() const
{
    return inStyle(UIColor::separatorColor());
}

QColor Theme::accentColor() const
{
    return inStyle(QColor(0, 95, 204), QColor(90, 170, 255));
}

QColor Theme::selectedTextColor() const
{
    QColor color = accentColor();
    color.setAlphaF(0.3F);
    return color;
}

QColor Theme::selectedRowColor() const
{
    return inStyle(QColor(209, 209, 214), QColor(58, 58, 60));
}

QColor Theme::backgroundColor() const
{
    return inStyle(UIColor::systemGroupedBackgroundColor());
}

QColor Theme::barColor() const
{
    return inStyle(QColor(249, 249, 249), QColor(22, 22, 23));
}

QColor Theme::unselectedTabColor() const
{
    return inStyle(QColor(112, 112, 116), QColor(128, 128, 130));
}

QColor Theme::alertColor() const
{
    return inStyle(QColor(245, 245, 247), QColor(44, 44, 46));
}

QColor Theme::pressedAlertColor() const
{
    return inStyle(QColor(224, 224, 229), QColor(56, 56, 59));
}

double Theme::alertDimming() const
{
    return inStyle(0.3, 0.48);
}

QFont Theme::headlineFont() const
{
    return inScale(UIFontTextStyle::Headline);
}

QFont Theme::bodyFont() const
{
    return inScale(UIFontTextStyle::Body);
}

QFont Theme::footnoteFont() const
{
    return inScale(UIFontTextStyle::Footnote);
}

QFont Theme::tabTitleFont() const
{
    return inScale(UIFontTextStyle::TabTitle);
}
