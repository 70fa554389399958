// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/UITableViewCell.h"

#include "platform/uikit/presentation/ViewUrl.h"

UITableViewCell::UITableViewCell(UITableViewCellStyle style, const QString &reuseIdentifier)
    : m_style(style), m_reuseIdentifier(reuseIdentifier)
{
    setBackgroundColor(UIColor::secondarySystemGroupedBackgroundColor());
    m_detailTextLabel.setFont(UIFont::preferredFontForTextStyle(UIFontTextStyle::Caption));
    // The labels name the row.
    connect(&m_textLabel, &UIView::changed, this, &UIView::changed);
    connect(&m_detailTextLabel, &UIView::changed, this, &UIView::changed);
}

UITableViewCell::~UITableViewCell() = default;

QUrl UITableViewCell::viewUrl() const
{
    return viewUrlOf(*this);
}

void UITableViewCell::prepareForReuse()
{
    setHighlighted(false);
    setSelected(false, false);
}

void UITableViewCell::setSelected(bool selected, bool animated)
{
    assign(m_animatesSelection, animated); // known before what it is about
    assign(m_selected, selected);
}

void UITableViewCell::setHighlighted(bool highlighted)
{
    if (m_highlighted == highlighted) {
        return;
    }
    assign(m_animatesSelection, false);
    assign(m_highlighted, highlighted);
}

bool UITableViewCell::drawsSelection() const
{
    return isSelectable() && (m_selected || m_highlighted);
}

UIColor UITableViewCell::selectionColor()
{
    static const UIColor color = UIColor::initWithDynamicProvider([](const auto &traits) {
        return traits.userInterfaceStyle == UIUserInterfaceStyle::Dark
            ? UIColor::colorWithRed(58 / 255.0, 58 / 255.0, 60 / 255.0, 1)
            : UIColor::colorWithRed(209 / 255.0, 209 / 255.0, 214 / 255.0, 1);
    });
    return color;
}

QString UITableViewCell::accessibilityLabel() const
{
    if (const QString label = UIView::accessibilityLabel(); !label.isEmpty()) {
        return label;
    }
    QStringList texts{m_textLabel.accessibilityLabel(), m_detailTextLabel.accessibilityLabel()};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}
