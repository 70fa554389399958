// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/WZTThanksTableViewCell.h"

#include "views/AdaptiveColors.h"

using namespace Qt::StringLiterals;

WZTThanksTableViewCell::WZTThanksTableViewCell(UITableViewCellStyle style,
                                               const QString &reuseIdentifier)
    : UITableViewCell(style, reuseIdentifier)
{
    setBackgroundColor(AdaptiveColors::cardBackground());
    contentView()->setBackgroundColor(AdaptiveColors::cardBackground());
    m_heartImageView.setImage(UIImage::imageNamed(u"heart"_s));
    m_heartImageView.setTintColor(UIColor::redColor());
    m_thanksLabel.setFont(UIFont::preferredFontForTextStyle(UIFontTextStyle::Body));
    m_thanksLabel.setText(u"Thanks for the support!"_s);
    m_thanksLabel.setTextAlignment(UILabel::Center);
    m_thanksLabel.setTextColor(AdaptiveColors::text());
}

WZTThanksTableViewCell::~WZTThanksTableViewCell() = default;
