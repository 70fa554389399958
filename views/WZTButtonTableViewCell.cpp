// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "views/WZTButtonTableViewCell.h"

WZTButtonTableViewCell::WZTButtonTableViewCell(UITableViewCellStyle style,
                                               const QString &reuseIdentifier)
    : UITableViewCell(style, reuseIdentifier),
      m_button(QRectF(), UIColor::colorWithRed(0.106, 0.506, 0.906, 1.0))
{
    contentView()->setBackgroundColor(UIColor::clearColor());
    m_button.setContentEdgeInsets({.top = 8, .left = 0, .bottom = 8, .right = 0});
    m_button.setTitleFont(UIFont::systemFontOfSize(24, QFont::Medium));
    m_button.setTitleColor(UIColor::whiteColor());
}

WZTButtonTableViewCell::~WZTButtonTableViewCell() = default;
