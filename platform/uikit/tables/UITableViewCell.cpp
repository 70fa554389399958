// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/tables/UITableViewCell.h"

#include "platform/uikit/base/ViewUrl.h"

UITableViewCell::UITableViewCell(UITableViewCellStyle, const QString &reuseIdentifier)
    : m_reuseIdentifier(reuseIdentifier)
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
    assign(m_animatesSelection, animated); // before the change that it is about
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

QString UITableViewCell::accessibilityLabel() const
{
    if (const QString label = UIView::accessibilityLabel(); !label.isEmpty()) {
        return label;
    }
    QStringList texts{m_textLabel.accessibilityLabel(), m_detailTextLabel.accessibilityLabel()};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}
