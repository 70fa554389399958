// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/UIFont.h"

#include <array>

namespace {

struct Style {
    UIFontTextStyle style;
    double points;
    QFont::Weight weight;
};

constexpr std::array styles{
    Style{UIFontTextStyle::Title2, 22, QFont::Normal},
    Style{UIFontTextStyle::Headline, 17, QFont::DemiBold},
    Style{UIFontTextStyle::Body, 17, QFont::Normal},
    Style{UIFontTextStyle::Footnote, 13, QFont::Normal},
    Style{UIFontTextStyle::Caption, 12, QFont::Normal},
    Style{UIFontTextStyle::TabTitle, 10, QFont::Medium},
};

} // namespace

UIFont UIFont::preferredFontForTextStyle(UIFontTextStyle style)
{
    for (const Style &row : styles) {
        if (row.style == style) {
            return {row.points, row.weight};
        }
    }
    Q_UNREACHABLE();
}

UIFont UIFont::systemFontOfSize(double points, QFont::Weight weight)
{
    return {points, weight};
}

QFont UIFont::toQFont(double textScale) const
{
    QFont font;
    font.setPixelSize(qMax(1, qRound(m_pointSize * textScale)));
    font.setWeight(m_weight);
    return font;
}
