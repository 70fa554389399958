// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/WZTHeaderTableViewCell.h"

using namespace Qt::StringLiterals;

WZTHeaderTableViewCell::WZTHeaderTableViewCell(UITableViewCellStyle style,
                                               const QString &reuseIdentifier)
    : UITableViewCell(style, reuseIdentifier)
{
    contentView()->setBackgroundColor(UIColor::clearColor());
    setBackgroundColor(UIColor::clearColor());
    m_logoImageView.setImage(UIImage::imageNamed(u"wztLogo"_s));
}

WZTHeaderTableViewCell::~WZTHeaderTableViewCell() = default;
